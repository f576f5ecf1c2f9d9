#include "desktop/DesktopRecord.h"

#include "support/windows/PrimarySelection.h"

namespace brindlex {
namespace {

/// A desktop that is the same for this long has done what it was to do.
constexpr std::chrono::milliseconds restfulState{120};

std::string titleOfActive(const MouseDesk& desk)
{
    const auto active = desk.windows.active();
    return active == XCB_WINDOW_NONE ? "none" : desk.windows.titleOf(active);
}

} // namespace

DesktopRecord::DesktopRecord(const MouseDesk& desk, std::function<std::string()> state)
    : desk_(desk), state_(std::move(state))
{
}

void DesktopRecord::note(const std::string& heading)
{
    desk_.settle();
    auto now = state_();
    const auto isSteady = [&] {
        now = state_();
        return throughout(restfulState, [&] { return state_() == now; });
    };
    if (!eventually(isSteady))
        text_ += "never still\n";
    text_ += "# " + heading + "\n" + now;
}

void DesktopRecord::waitForLine(const std::string& line) const
{
    eventually([&] { return ("\n" + state_()).find("\n" + line + "\n") != std::string::npos; });
}

std::string textOf(const ScreenArea& area)
{
    return std::to_string(area.x) + "," + std::to_string(area.y) + " " + std::to_string(area.width)
        + "x" + std::to_string(area.height);
}

std::string commonState(const MouseDesk& desk)
{
    return "front: " + titleOfActive(desk) + "\ndesktop: " + std::to_string(desk.currentDesktop())
        + "\nselected: " + primarySelection(desk.server) + "\n";
}

} // namespace brindlex
