#include "fuzz/FuzzTarget.h"

#include "platform/linux/applications/AutostartEntry.h"
#include "platform/linux/applications/DesktopEntryText.h"

using namespace brindlex;

namespace {

using Status = LoginItem::Status;

void checkKey(std::string_view text)
{
    const auto changed = withDesktopEntryKey(text, "X-Key", " a\\b\n%c ");
    const DesktopEntryKeys keys(changed);
    require(!keys.hasGroup() || keys.value("X-Key") == " a\\b\n%c ", "a value is read as written");
    const auto shortened = withDesktopEntryKey(changed, "X-Key", {});
    const DesktopEntryKeys without(shortened);
    require(!without.contains("X-Key"), "a key that was taken away is gone");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    const AutostartProgram program{"Program", "/opt/a \"$b%/program"};
    const AutostartDesktop desktop{
        {"GNOME"}, [&](const std::string& name) { return name == program.file.string(); }};

    const auto on = autostartEntryOn(text, program, desktop);
    require(autostartStatus(on, desktop) == Status::enabled, "what is switched on is on");
    require(autostartEntryOn(on, program, desktop) == on, "and on once more is the same");
    require(autostartStatus(autostartEntryOff(on), desktop) == Status::notRegistered,
        "what is switched off is off");
    checkKey(text);
    return 0;
}
