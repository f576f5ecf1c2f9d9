#include "mouse/MouseGestureFixture.h"

namespace brindlex {
namespace {

TEST_F(MouseGestureTest, prunesLostPressesAtTwoSecondsByTheNextDown)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3);
    now = Date{1001.9999};
    EXPECT_EQ(down(2), Outcome{});
    now = Date{1002};
    EXPECT_EQ(down(2), (Outcome{pass, {info("pending timed out before next down Side Back (4)")}}));
    EXPECT_EQ(state, MouseGestureState{});
}

TEST_F(MouseGestureTest, prunesByADownOfAnyButtonBeforeAllElse)
{
    bind(MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward);
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(0);
    down(4);
    now = Date{1003};

    EXPECT_EQ(down(9).effects,
        (std::vector{info("pending timed out before next down Left Button"),
            info("pending timed out before next down Side Forward (5)")}));
}

TEST_F(MouseGestureTest, keepsAPressOfExactlyTwoSecondsForADrag)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3);
    now = Date{1002};
    EXPECT_EQ(drag(3, {110, 100}), (Outcome{swallow, {}}));
    now = Date{1002.0001};
    EXPECT_EQ(drag(3, {111, 100}),
        (Outcome{pass, {info("pending timed out during drag Side Back (4)")}}));
    EXPECT_EQ(drag(3, {112, 100}), Outcome{});
    EXPECT_EQ(up(3), (Outcome{pass, {info("up without pending Side Back (4)")}}));
}

TEST_F(MouseGestureTest, keepsAPressOfExactlyTwoSecondsForItsUp)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3);
    now = Date{1002};
    EXPECT_EQ(up(3), (Outcome{swallow, {replay(MouseButton::button4, {100, 100})}}));

    down(3);
    now = Date{1004.0001};
    EXPECT_EQ(up(3), (Outcome{pass, {info("pending timed out before up Side Back (4)")}}));
    EXPECT_EQ(state, MouseGestureState{});
}

TEST_F(MouseGestureTest, timesOutAlsoAfterItsAction)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3);
    drag(3, {200, 100});
    now = Date{1003};

    EXPECT_EQ(up(3), (Outcome{pass, {info("pending timed out before up Side Back (4)")}}));
}

TEST_F(MouseGestureTest, doesNotTimeOutWhenTheClockIsSetBack)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3);
    now = Date{-500000};

    EXPECT_EQ(drag(3, {110, 100}), (Outcome{swallow, {}}));
    EXPECT_EQ(up(3).effects, (std::vector{replay(MouseButton::button4, {100, 100})}));
}

} // namespace
} // namespace brindlex
