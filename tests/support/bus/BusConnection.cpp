#include "support/bus/BusConnection.h"

#include <cstdint>
#include <cstdlib>
#include <systemd/sd-bus.h>
#include <utility>

namespace brindlex {
namespace {

constexpr std::uint64_t timeToReply = 5'000'000; // in microseconds

void append(sd_bus_message* message, const std::vector<BusConnection::Argument>& arguments)
{
    for (const auto& argument : arguments) {
        if (const auto* const text = std::get_if<std::string>(&argument))
            sd_bus_message_append_basic(message, SD_BUS_TYPE_STRING, text->c_str());
        else
            sd_bus_message_append_basic(
                message, SD_BUS_TYPE_UINT32, &std::get<std::uint32_t>(argument));
    }
}

sd_bus* connect(const std::string& address)
{
    sd_bus* bus = nullptr;
    if (sd_bus_new(&bus) < 0)
        return nullptr;
    sd_bus_set_address(bus, address.c_str());
    sd_bus_set_bus_client(bus, 1);
    if (sd_bus_start(bus) < 0)
        return sd_bus_unref(bus);
    sd_bus_set_method_call_timeout(bus, timeToReply);
    return bus;
}

} // namespace

BusReply::BusReply(sd_bus_message* message) : message_(message) { }

BusReply::~BusReply() { sd_bus_message_unref(message_); }

BusReply::BusReply(BusReply&& other) noexcept : message_(std::exchange(other.message_, nullptr)) { }

void BusReply::enter()
{
    char type = 0;
    const char* contents = nullptr;
    if (message_ && sd_bus_message_peek_type(message_, &type, &contents) > 0)
        sd_bus_message_enter_container(message_, type, contents);
}

void BusReply::skip()
{
    char type = 0;
    const char* contents = nullptr;
    if (!message_ || sd_bus_message_peek_type(message_, &type, &contents) <= 0)
        return;
    std::string signature(1, type);
    if (type == SD_BUS_TYPE_ARRAY)
        signature += contents;
    else if (type == SD_BUS_TYPE_STRUCT)
        signature = "(" + std::string(contents) + ")";
    sd_bus_message_skip(message_, signature.c_str());
}

std::string BusReply::text()
{
    const char* text = nullptr;
    if (!message_ || sd_bus_message_read_basic(message_, SD_BUS_TYPE_STRING, &text) <= 0)
        return {};
    return text;
}

bool BusReply::boolean()
{
    int value = 0;
    return message_ && sd_bus_message_read_basic(message_, SD_BUS_TYPE_BOOLEAN, &value) > 0
        && value != 0;
}

std::string BusReply::path()
{
    const char* path = nullptr;
    if (!message_ || sd_bus_message_read_basic(message_, SD_BUS_TYPE_OBJECT_PATH, &path) <= 0)
        return {};
    return path;
}

std::int32_t BusReply::number()
{
    std::int32_t number = 0;
    if (message_)
        sd_bus_message_read_basic(message_, SD_BUS_TYPE_INT32, &number);
    return number;
}

std::vector<std::uint32_t> BusReply::numbers()
{
    const void* list = nullptr;
    std::size_t size = 0;
    if (!message_ || sd_bus_message_read_array(message_, SD_BUS_TYPE_UINT32, &list, &size) < 0)
        return {};
    const auto* const first = static_cast<const std::uint32_t*>(list);
    return {first, first + size / sizeof(std::uint32_t)};
}

bool BusReply::isAtEnd() { return !message_ || sd_bus_message_at_end(message_, 0) != 0; }

void BusReply::leave()
{
    if (message_)
        sd_bus_message_exit_container(message_);
}

std::vector<std::string> BusReply::texts()
{
    char** list = nullptr;
    std::vector<std::string> texts;
    if (!message_ || sd_bus_message_read_strv(message_, &list) < 0)
        return texts;
    for (auto entry = list; entry && *entry; ++entry) {
        texts.emplace_back(*entry);
        std::free(*entry);
    }
    std::free(list);
    return texts;
}

BusConnection::BusConnection() : bus_(nullptr)
{
    if (const auto address = std::getenv("DBUS_SESSION_BUS_ADDRESS"))
        bus_ = connect(address);
}

BusConnection::BusConnection(const std::string& address) : bus_(connect(address)) { }

BusConnection::~BusConnection() { sd_bus_flush_close_unref(bus_); }

bool BusConnection::isOpen() const { return bus_ && sd_bus_is_open(bus_) > 0; }

bool BusConnection::hasOwner(const std::string& name) const
{
    return call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "NameHasOwner", {name})
        .boolean();
}

std::optional<int> BusConnection::processOf(const std::string& name) const
{
    if (!bus_)
        return std::nullopt;
    sd_bus_creds* owner = nullptr;
    pid_t process = 0;
    const auto found = sd_bus_get_name_creds(bus_, name.c_str(), SD_BUS_CREDS_PID, &owner) >= 0
        && sd_bus_creds_get_pid(owner, &process) >= 0;
    sd_bus_creds_unref(owner);
    return found ? std::optional<int>(process) : std::nullopt;
}

BusReply BusConnection::call(const std::string& service, const std::string& path,
    const std::string& interface, const std::string& operation,
    const std::vector<Argument>& arguments) const
{
    sd_bus_message* question = nullptr;
    sd_bus_message* reply = nullptr;
    if (bus_
        && sd_bus_message_new_method_call(
               bus_, &question, service.c_str(), path.c_str(), interface.c_str(), operation.c_str())
            >= 0) {
        sd_bus_message_set_auto_start(question, 0);
        append(question, arguments);
        sd_bus_call(bus_, question, timeToReply, nullptr, &reply);
        sd_bus_message_unref(question);
    }
    return BusReply(reply);
}

BusReply BusConnection::property(const std::string& service, const std::string& path,
    const std::string& interface, const std::string& name) const
{
    auto reply = call(service, path, "org.freedesktop.DBus.Properties", "Get", {interface, name});
    reply.enter();
    return reply;
}

void BusConnection::emit(const std::string& path, const std::string& interface,
    const std::string& signal, const std::vector<std::string>& arguments) const
{
    sd_bus_message* message = nullptr;
    if (!bus_
        || sd_bus_message_new_signal(
               bus_, &message, path.c_str(), interface.c_str(), signal.c_str())
            < 0)
        return;
    append(message, {arguments.begin(), arguments.end()});
    sd_bus_send(bus_, message, nullptr);
    sd_bus_flush(bus_);
    sd_bus_message_unref(message);
}

} // namespace brindlex
