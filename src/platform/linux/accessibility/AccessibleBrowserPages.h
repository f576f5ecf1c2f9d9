#pragma once

#include "foundation/Subscribers.h"
#include "platform/BackgroundQueue.h"
#include "platform/BrowserPageReading.h"
#include "platform/Clock.h"
#include "platform/MainThread.h"
#include "platform/linux/accessibility/AccessibilityLimits.h"
#include "platform/linux/windows/ActiveWindow.h"

#include <memory>
#include <optional>

namespace brindlex {

/// The pages of browsers as their windows offer them to assistive technology.
///
/// A page is read on the queue, one at a time, and only because somebody asked: nothing runs while
/// nobody asks or observes. `currentURL` returns at once the page last read of the window that is
/// active, for 2.0 s after its reading began, and starts a reading unless one is under way or ended
/// well within the last 0.2 s. A browser too busy to reply keeps its page for those 2.0 s. While
/// changes are observed, a new title of the active window has the page read at once, and shortly
/// after again where the page comes later than its title. Main thread only; the queue should be for
/// this alone, as a reading may hold it for as long as the limits.
class AccessibleBrowserPages : public BrowserPageReading {
public:
    /// The window that the user works in, and when its title changes.
    struct Front {
        std::function<std::optional<ActiveWindow>()> activeWindow;
        std::function<Subscription(std::function<void()>)> observeTitle;
    };

    static constexpr Seconds pageLife = 2.0;
    static constexpr Seconds pageFreshness = 0.2;

    AccessibleBrowserPages(MainThread& mainThread, const Clock& clock, BackgroundQueue& queue,
        Front front, const AccessibilityLimits& limits = {});
    ~AccessibleBrowserPages() override;
    AccessibleBrowserPages(const AccessibleBrowserPages&) = delete;
    AccessibleBrowserPages& operator=(const AccessibleBrowserPages&) = delete;

    std::optional<std::string> currentURL(
        const std::string& bundleID, const std::string& script) override;
    Subscription observeChanges(std::function<void()> handler) override;

private:
    class Reading;
    std::shared_ptr<Reading> reading_;
    BackgroundQueue& queue_;
};

} // namespace brindlex
