#pragma once

#include "platform/linux/accessibility/AccessibleBrowserPages.h"
#include "platform/posix/SerialQueue.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "support/basics/Eventually.h"
#include "support/browsers/FakeBrowser.h"
#include "support/screen/VirtualDesktop.h"

#include <functional>
#include <optional>

namespace brindlex {

/// A desktop with one fake browser in front, read as the program reads pages: on a thread of its
/// own, while the main thread and its time are the test's.
struct FakeBrowserPages {
    /// Time enough on any machine for a browser that replies at all.
    static constexpr AccessibilityLimits patience{
        std::chrono::seconds(20), std::chrono::minutes(1)};

    explicit FakeBrowserPages(const AccessibilityLimits& timeLimits = patience) : limits(timeLimits)
    {
    }

    AccessibilityLimits limits;
    VirtualDesktop desktop{{.windowManager = WindowManager::none, .accessibility = true}};
    FakeBrowser browser{};
    std::optional<ActiveWindow> active{
        ActiveWindow{WindowIdentity{0x400001}, browser.identity(), "Page - Browser"}};
    SimulatedClock clock{};
    SimulatedMainThread mainThread{clock};
    SerialQueue queue{"pages"};
    Subscribers<std::function<void()>> titles{};
    AccessibleBrowserPages pages{mainThread, clock, queue, front(), limits};

    AccessibleBrowserPages::Front front()
    {
        return {[this] { return active; },
            [this](std::function<void()> handler) { return titles.add(std::move(handler)); }};
    }

    std::optional<std::string> ask() { return pages.currentURL("org.chromium.Chromium", ""); }

    /// Waits until everything asked for so far has been read.
    void settle()
    {
        queue.drain();
        mainThread.runUntilIdle();
    }

    /// What is known once a reading that is asked for now has ended.
    std::optional<std::string> read()
    {
        ask();
        settle();
        return ask();
    }

    bool until(const std::function<bool()>& condition)
    {
        return eventually([&] {
            mainThread.runUntilIdle();
            return condition();
        });
    }
};

} // namespace brindlex
