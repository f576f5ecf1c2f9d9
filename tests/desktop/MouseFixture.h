#pragma once

#include "desktop/MouseDesk.h"
#include "support/hardware/Keycodes.h"

#include <gtest/gtest.h>

namespace brindlex {

/// What the running program makes of the mouse, on a desktop of its own.
class Mouse : public testing::Test {
protected:
    using Lines = MouseDesk::Lines;

    /// Drags with a button by this much, in steps, and leaves it pressed.
    void drag(int button, double x, double y) const
    {
        desk.mouse.press(button);
        // A motion in the same instant would be the server's before the press is anybody's.
        desk.mouse.settle();
        for (int step = 0; step < 10; ++step)
            desk.mouse.move(x / 10, y / 10);
        desk.settle();
    }

    testing::AssertionResult receives(EventLogWindow& window, const Lines& expected) const
    {
        if (desk.receives(window, expected))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << testing::PrintToString(window.lines()) << "\n"
                                           << desk.program->report();
    }

    /// Plays a click, a notch and a key that nobody has a use for, and waits until they have
    /// arrived as they are.
    testing::AssertionResult receivesWhatIsOfNoUse(EventLogWindow& window) const
    {
        desk.mouse.click(backButton);
        desk.mouse.turnWheel(1);
        desk.keyboard.stroke(keycode::a);
        desk.keyboard.settle();
        return receives(
            window, {"press 8", "release 8", "press 5", "release 5", "key 38 down", "key 38 up"});
    }

    MouseDesk desk;
};

} // namespace brindlex
