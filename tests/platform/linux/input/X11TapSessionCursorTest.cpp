#include "platform/linux/input/X11TapSessionFixture.h"

namespace brindlex {
namespace {

TEST_F(X11TapSessionTest, movesTheCursorAsFarAsTheMouseDoesByItself)
{
    const auto play = [this] {
        desktop_.window.movePointer({640, 400});
        for (int step = 0; step < 40; ++step) {
            desktop_.mouse.move(0.3 * (1 + step % 7), -0.45 * (1 + step % 5));
            desktop_.mouse.settle();
        }
        desktop_.settle();
        return desktop_.window.pointer();
    };
    const auto alone = play();

    tap({mouseButtonMask | wheel | eventMask(EventType::mouseMoved), {}});
    const auto tapped = play();

    EXPECT_NEAR(alone.x, 640 + 46.5, 1);
    EXPECT_NEAR(alone.y, 400 - 54, 1);
    EXPECT_NEAR(tapped.x, alone.x, 1);
    EXPECT_NEAR(tapped.y, alone.y, 1);
}

TEST_F(X11TapSessionTest, tellsWhereTheCursorIsAndWhatIsHeldAtEachEvent)
{
    tap(middleButton(), EventVerdict::swallow);
    desktop_.window.movePointer({200, 100});
    desktop_.keyboard.press(keycode::control);
    desktop_.settle();

    desktop_.mouse.press(2);
    desktop_.settle();
    desktop_.mouse.move(2, 1);
    desktop_.settle();
    desktop_.keyboard.release(keycode::control);
    desktop_.settle();
    desktop_.mouse.release(2);
    desktop_.settle();

    const EventFields fields{{EventField::mouseEventButtonNumber, 2}};
    EXPECT_EQ(seen_,
        (std::vector<Event>{{EventType::otherMouseDown, {200, 100}, eventFlag::control, fields},
            {EventType::otherMouseDragged, {202, 101}, eventFlag::control, fields},
            {EventType::otherMouseUp, {202, 101}, 0, fields}}));
}

TEST_F(X11TapSessionTest, isNotLedAstrayByAProgramThatMovesTheCursor)
{
    tap({mouseButtonMask, {}});
    desktop_.mouse.move(1, 1);
    desktop_.settle();

    desktop_.window.movePointer({300, 200});
    desktop_.mouse.move(2, 1);
    desktop_.settle();

    EXPECT_EQ(desktop_.window.pointer(), (EventLogWindow::Position{302, 201}));
}

} // namespace
} // namespace brindlex
