#pragma once

#include "platform/linux/input/X11EventPosting.h"
#include "platform/linux/input/X11EventTapping.h"
#include "platform/linux/input/X11InputStream.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/posix/PosixClock.h"
#include "support/hardware/PlayedHardware.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/EventLogWindow.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// A desktop with played hardware whose input this process taps, and a window that logs what
/// arrives.
struct TappedDesktop {
    using Lines = std::vector<std::string>;

    explicit TappedDesktop(EventLogWindow::Protocol protocol = EventLogWindow::Protocol::core,
        VirtualDesktop::Options options = {})
        : desktop(tapped(std::move(options))), window(protocol)
    {
    }

    /// Runs the loop until what was asked of the taps so far has been carried out.
    void settleTaps()
    {
        bool isDone = false;
        // One turn for the request, one for what follows from it.
        const auto first
            = mainThread.after(0, [&] { second = mainThread.after(0, [&] { isDone = true; }); });
        ASSERT_TRUE(loopUntil([&] { return isDone; }));
        const XConnection server;
        server.sync();
    }

    /// Waits until all that was played has gone its way.
    void settle()
    {
        mouse.settle();
        secondMouse.settle();
        keyboard.settle();
        settleTaps();
    }

    /// Runs the loop until exactly these lines have arrived.
    testing::AssertionResult receives(const Lines& expected)
    {
        if (loopUntil([&] { return window.lines().size() >= expected.size(); })
            && window.lines() == expected)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "arrived: " << testing::PrintToString(window.lines());
    }

    VirtualDesktop desktop;
    PlayedMouse mouse{desktop};
    PlayedMouse secondMouse{desktop, "second-mouse"};
    PlayedKeyboard keyboard{desktop};
    EventLogWindow window;
    QtMainThread mainThread;
    PosixClock clock;
    X11InputStream stream{mainThread};
    X11EventTapping tapping{stream};
    X11EventPosting posting{stream, mainThread, clock};
    Subscription second;

private:
    static VirtualDesktop::Options tapped(VirtualDesktop::Options options)
    {
        options.windowManager = WindowManager::none;
        options.sessionBus = false;
        options.server = VirtualDesktop::Server::withPlayedHardware;
        return options;
    }
};

} // namespace brindlex
