#include "platform/linux/inputsources/IBusAddress.h"

#include "foundation/FileReading.h"
#include "foundation/Text.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>

namespace brindlex {
namespace {

constexpr std::size_t fileLimit = 64 * 1024;

std::string variable(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string machineIdentifier()
{
    for (const auto* file : {"/var/lib/dbus/machine-id", "/etc/machine-id"})
        if (const auto content = readFile(file, 4096); content && *content)
            return trimmed(**content);
    return {};
}

bool isRunning(std::int64_t process)
{
    return process > 0 && (::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
}

} // namespace

std::optional<IBusAddress> parseIBusAddress(std::string_view content)
{
    constexpr std::string_view addressKey = "IBUS_ADDRESS=";
    constexpr std::string_view processKey = "IBUS_DAEMON_PID=";
    IBusAddress result;
    for (const auto& line : split(content, '\n')) {
        if (line.starts_with(addressKey))
            result.address = line.substr(addressKey.size());
        if (line.starts_with(processKey))
            std::from_chars(line.data() + processKey.size(), line.data() + line.size(),
                result.processIdentifier);
    }
    if (result.address.empty())
        return {};
    return result;
}

std::filesystem::path ibusAddressFile(const std::filesystem::path& configFolder,
    const std::string& machine, const std::string& display)
{
    const auto colon = display.rfind(':');
    const auto host = colon == display.npos || colon == 0 ? "unix" : display.substr(0, colon);
    const auto number = colon == display.npos ? display : display.substr(colon + 1);
    return configFolder / "ibus/bus"
        / (machine + "-" + host + "-" + number.substr(0, number.find('.')));
}

std::optional<IBusAddress> ibusAddress()
{
    if (const auto address = variable("IBUS_ADDRESS"); !address.empty())
        return IBusAddress{address, 0};
    std::filesystem::path file = variable("IBUS_ADDRESS_FILE");
    if (file.empty()) {
        const auto config = variable("XDG_CONFIG_HOME");
        file = ibusAddressFile(config.empty() ? variable("HOME") + "/.config" : config,
            machineIdentifier(), variable("DISPLAY"));
    }
    const auto content = readFile(file, fileLimit);
    if (!content || !*content)
        return {};
    auto address = parseIBusAddress(**content);
    if (!address || !isRunning(address->processIdentifier))
        return {};
    return address;
}

} // namespace brindlex
