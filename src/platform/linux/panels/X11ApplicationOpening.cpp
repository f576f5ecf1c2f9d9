#include "platform/linux/panels/X11ApplicationOpening.h"

#include "log/Log.h"
#include "platform/linux/panels/WindowChoice.h"
#include "platform/linux/panels/X11OpenWindows.h"
#include "platform/linux/windows/X11WindowActivation.h"
#include "platform/linux/windows/X11WindowReading.h"

#include <string>

namespace brindlex {

X11ApplicationOpening::X11ApplicationOpening(
    X11Connection& connection, const X11RunningApplications& applications)
    : connection_(connection), applications_(applications), windowUse_(connection),
      chooser_(connection, [this](std::uint32_t window) { activateWindow(connection_, window); })
{
}

void X11ApplicationOpening::open(const std::filesystem::path& application)
{
    if (application.filename() != "Mission Control.app")
        return;
    const bool isRequested = overview_.request([this](const std::string& reason) {
        Log::warn("Mission Control: the desktop does not show its overview (" + reason
                + "); the list of windows is shown instead",
            logCategory::mouse);
        toggleWindowsSoon();
    });
    if (!isRequested)
        toggleWindowsSoon();
}

void X11ApplicationOpening::toggleWindowsSoon()
{
    // The events of the windows that were used up to now are here then, and handed out.
    const auto soon
        = [this](auto work) { QMetaObject::invokeMethod(&later_, work, Qt::QueuedConnection); };
    soon([this, soon] {
        activeWindow(connection_);
        soon([this] { toggleWindows(); });
    });
}

void X11ApplicationOpening::toggleWindows()
{
    if (chooser_.isShown())
        return chooser_.close();
    const auto windows = openWindows(connection_, applications_, windowUse_.recent());
    if (windows.empty())
        return Log::info("Mission Control: no window is open", logCategory::mouse);
    const bool worksInFirst = windows.front().window == activeWindow(connection_);
    chooser_.show(windows, rowToBeginWith(windows.size(), worksInFirst));
}

} // namespace brindlex
