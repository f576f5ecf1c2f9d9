#include "platform/linux/applications/AutostartEntry.h"

#include "platform/linux/applications/DesktopEntryText.h"

#include <algorithm>

namespace brindlex {
namespace {

using Status = LoginItem::Status;

constexpr auto gnomeSwitch = "X-GNOME-Autostart-enabled";

bool namesOneOf(const std::vector<std::string>& list, const AutostartDesktop& desktop)
{
    return std::find_first_of(list.begin(), list.end(), desktop.names.begin(), desktop.names.end())
        != list.end();
}

bool isForOthersOnly(const DesktopEntryKeys& keys, const AutostartDesktop& desktop)
{
    return keys.contains("OnlyShowIn") && !namesOneOf(keys.list("OnlyShowIn"), desktop);
}

bool isNotForThis(const DesktopEntryKeys& keys, const AutostartDesktop& desktop)
{
    return namesOneOf(keys.list("NotShowIn"), desktop);
}

bool isWithoutItsProgram(const DesktopEntryKeys& keys, const AutostartDesktop& desktop)
{
    const auto program = keys.value("TryExec");
    return !program.empty() && !desktop.canRun(program);
}

bool startsSomething(const DesktopEntryKeys& keys)
{
    return keys.value("Type") == "Application" && !keys.value("Exec").empty()
        && keys.value("Hidden") != "true";
}

} // namespace

Status autostartStatus(std::string_view text, const AutostartDesktop& desktop)
{
    const DesktopEntryKeys keys(text);
    if (!startsSomething(keys))
        return Status::notRegistered;
    const bool isOff = keys.value(gnomeSwitch) == "false" || isForOthersOnly(keys, desktop)
        || isNotForThis(keys, desktop) || isWithoutItsProgram(keys, desktop);
    return isOff ? Status::requiresApproval : Status::enabled;
}

std::string autostartEntryOn(
    std::string_view text, const AutostartProgram& program, const AutostartDesktop& desktop)
{
    const DesktopEntryKeys before(text);
    auto entry = before.hasGroup() ? std::string(text) : "[Desktop Entry]\n";
    const auto set = [&](std::string_view key, const std::optional<std::string>& value) {
        entry = withDesktopEntryKey(entry, key, value);
    };
    // A key that is new comes to stand at the top.
    set("TryExec", program.file.string());
    set("Exec", quotedForExec(program.file.string()) + " --started-at-login");
    if (!before.contains("Name"))
        set("Name", program.name);
    set("Type", "Application");
    set("Hidden", {});
    if (before.contains(gnomeSwitch))
        set(gnomeSwitch, "true");
    if (isForOthersOnly(before, desktop))
        set("OnlyShowIn", {});
    if (isNotForThis(before, desktop))
        set("NotShowIn", {});
    return entry;
}

std::string autostartEntryOff(std::string_view text)
{
    return withDesktopEntryKey(text, "Hidden", "true");
}

} // namespace brindlex
