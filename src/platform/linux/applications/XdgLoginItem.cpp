#include "platform/linux/applications/XdgLoginItem.h"

#include "foundation/FileReading.h"
#include "foundation/FileReplacement.h"
#include "foundation/PrivateFolder.h"
#include "foundation/Text.h"
#include "platform/linux/applications/DesktopFolders.h"

#include <QStandardPaths>

#include <cstdlib>
#include <system_error>
#include <utility>

namespace brindlex {
namespace {

constexpr std::size_t sizeLimit = 1024 * 1024;

bool canRun(const std::string& program)
{
    return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
}

std::vector<std::string> currentDesktop()
{
    const char* const names = std::getenv("XDG_CURRENT_DESKTOP");
    return names ? split(names, ':') : std::vector<std::string>{};
}

} // namespace

XdgLoginItem::XdgLoginItem(const std::vector<std::filesystem::path>& configFolders,
    const std::string& identifier, AutostartProgram program, std::vector<std::string> desktop)
    : program_(std::move(program)), desktop_{std::move(desktop), canRun}
{
    for (const auto& folder : configFolders)
        files_.push_back(folder / "autostart" / (identifier + ".desktop"));
}

XdgLoginItem XdgLoginItem::ofUser(const std::string& identifier, AutostartProgram program)
{
    return {configFolders(), identifier, std::move(program), currentDesktop()};
}

LoginItem::Status XdgLoginItem::status() { return autostartStatus(text().value_or(""), desktop_); }

Result<Done, std::string> XdgLoginItem::registerProgram()
{
    return replace(autostartEntryOn(text().value_or(""), program_, desktop_));
}

Result<Done, std::string> XdgLoginItem::unregisterProgram()
{
    const auto entry = text();
    if (!entry)
        return Done{};
    return replace(autostartEntryOff(*entry));
}

std::optional<std::string> XdgLoginItem::text() const
{
    for (const auto& file : files_) {
        const auto content = readFile(file, sizeLimit);
        if (!content)
            return {};
        if (*content)
            return **content;
    }
    return {};
}

Result<Done, std::string> XdgLoginItem::replace(const std::string& text) const
{
    const auto& file = files_.front();
    makePrivateFolder(file.parent_path());
    const auto replaced = replaceFile(file, text);
    if (!replaced)
        return fail(replaced.error().reason);
    return Done{};
}

} // namespace brindlex
