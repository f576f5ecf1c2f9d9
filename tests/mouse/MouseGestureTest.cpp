#include "mouse/MouseGestureFixture.h"

namespace brindlex {
namespace {

TEST_F(MouseGestureTest, performsTheActionWhenTheDirectionLocks)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);

    EXPECT_EQ(down(3), (Outcome{swallow, {info("pending Side Back (4)")}}));
    EXPECT_EQ(drag(3, {129, 100}), (Outcome{swallow, {}}));
    EXPECT_EQ(drag(3, {130, 100}),
        (Outcome{swallow,
            {info("locked Side Back (4) Right"), info("dispatched on lock Side Back (4) Right"),
                perform(MouseAction::Plain::forward)}}));
    EXPECT_EQ(drag(3, {100, 300}), (Outcome{swallow, {}}));
    EXPECT_EQ(up(3), (Outcome{swallow, {}}));
    EXPECT_EQ(state, MouseGestureState{});
}

TEST_F(MouseGestureTest, endsWithNothingForADirectionWithoutBinding)
{
    bind(MouseButton::right, {}, MouseDirection::up, MouseAction::Plain::back);
    down(1);

    EXPECT_EQ(drag(1, {60, 100}),
        (Outcome{swallow,
            {info("locked Right Button Left"), info("no binding for Right Button Left")}}));
    EXPECT_EQ(drag(1, {100, 0}), (Outcome{swallow, {}}));
    EXPECT_EQ(up(1), (Outcome{swallow, {}}));
}

TEST_F(MouseGestureTest, passesAPressWithOtherModifiers)
{
    bind(MouseButton::button4, ModifierSet::command, MouseDirection::up, MouseAction::Plain::back);

    EXPECT_EQ(down(3), Outcome{});
    EXPECT_EQ(down(3, {}, eventFlag::command | eventFlag::shift), Outcome{});
    EXPECT_EQ(drag(3, {0, 0}), Outcome{});
    EXPECT_EQ(up(3), (Outcome{pass, {info("up without pending Side Back (4)")}}));
    EXPECT_EQ(down(3, {}, eventFlag::command | eventFlag::capsLock).verdict, swallow);
}

TEST_F(MouseGestureTest, readsTheModifiersAgainWhenTheDirectionLocks)
{
    bind(MouseButton::button4, ModifierSet::command, MouseDirection::up, MouseAction::Plain::back);
    down(3, {100, 100}, eventFlag::command);

    EXPECT_EQ(drag(3, {100, 70}),
        (Outcome{
            swallow, {info("locked Side Back (4) Up"), info("no binding for Side Back (4) Up")}}));
    EXPECT_EQ(up(3, {100, 70}, eventFlag::command), (Outcome{swallow, {}}));
}

TEST_F(MouseGestureTest, takesTheFirstBindingThatFits)
{
    bind(MouseButton::button4, {}, MouseDirection::down, MouseAction::Plain::back);
    bind(MouseButton::button4, {}, MouseDirection::up, MouseAction::Plain::forward);
    bind(MouseButton::button4, {}, MouseDirection::up, MouseAction::Plain::showDesktop);
    down(3);

    EXPECT_EQ(drag(3, {100, 0}).effects.back(), perform(MouseAction::Plain::forward));
}

TEST_F(MouseGestureTest, goesTwiceAsFarOnAScreenThatIsDrawnTwiceAsLarge)
{
    unitsPerPoint = 2;
    bind(MouseButton::right, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(1);
    EXPECT_EQ(drag(1, {159, 100}), (Outcome{swallow, {}}));
    EXPECT_EQ(drag(1, {160, 100}).effects.back(), perform(MouseAction::Plain::forward));
    up(1);

    down(1);
    drag(1, {112, 100});
    EXPECT_EQ(up(1), (Outcome{swallow, {replay(MouseButton::right, {100, 100})}}));
    down(1);
    drag(1, {112.1, 100});
    EXPECT_EQ(up(1), (Outcome{swallow, {info("suppress click replay Right Button")}}));
}

TEST_F(MouseGestureTest, readsTheThresholdAtEachEvent)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3);
    config.distanceThreshold = 60;
    EXPECT_EQ(drag(3, {150, 100}), (Outcome{swallow, {}}));
    config.distanceThreshold = 10;
    EXPECT_EQ(drag(3, {140, 100}), (Outcome{swallow, {}}));
    EXPECT_EQ(drag(3, {151, 100}).effects.size(), 3u);
}

TEST_F(MouseGestureTest, putsANewPressInThePlaceOfAnOldOne)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3, {0, 0});
    drag(3, {50, 0});
    now = Date{1001};

    EXPECT_EQ(down(3, {300, 0}), (Outcome{swallow, {info("pending Side Back (4)")}}));
    EXPECT_EQ(up(3).effects, (std::vector{replay(MouseButton::button4, {300, 0})}));
}

TEST_F(MouseGestureTest, keepsTheButtonsApart)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Plain::back);
    down(3, {0, 0});
    down(4, {10, 0});

    EXPECT_EQ(drag(4, {60, 0}).effects.back(), perform(MouseAction::Plain::back));
    EXPECT_EQ(up(3).effects, (std::vector{replay(MouseButton::button4, {0, 0})}));
    EXPECT_EQ(up(4), (Outcome{swallow, {}}));
}

TEST_F(MouseGestureTest, passesAButtonThatIsNone)
{
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Plain::forward);
    for (const std::int64_t number : {5, 11, -1}) {
        EXPECT_EQ(step(EventType::otherMouseDown, number, {}), Outcome{});
        EXPECT_EQ(step(EventType::otherMouseDragged, number, {900, 0}), Outcome{});
        EXPECT_EQ(step(EventType::otherMouseUp, number, {}), Outcome{});
    }
}

TEST_F(MouseGestureTest, saysNothingOfAnUpThatNoBindingUses)
{
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Plain::forward);

    EXPECT_EQ(up(2), Outcome{});
    EXPECT_EQ(up(4), (Outcome{pass, {info("up without pending Side Forward (5)")}}));
}

TEST_F(MouseGestureTest, passesEventsOfOtherTypes)
{
    bind(MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward);
    for (const auto type : {EventType::mouseMoved, EventType::keyDown, EventType::scrollWheel,
             EventType::tapDisabledByTimeout})
        EXPECT_EQ(step(type, 0, {}), Outcome{});
}

TEST_F(MouseGestureTest, asksAboutResizingOnlyForALeftPressWithABinding)
{
    bind(
        MouseButton::left, ModifierSet::option, MouseDirection::right, MouseAction::Plain::forward);
    bind(MouseButton::right, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(0);
    down(1);
    EXPECT_TRUE(asks.empty());

    EXPECT_EQ(down(0, {40, 50}, eventFlag::option),
        (Outcome{swallow,
            {info("left down decision decision=gesture reason=none point=100.0,100.0 cursor=C "
                  "ax=A windowEdge=false"),
                info("pending Left Button")}}));
    EXPECT_EQ(asks, (std::vector<Point>{{40, 50}}));
}

TEST_F(MouseGestureTest, standsAsideForAResize)
{
    bind(MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward);
    decision.shouldBypass = true;
    decision.reason = "cursor";

    EXPECT_EQ(down(0),
        (Outcome{pass,
            {info("left down decision decision=bypass reason=cursor point=100.0,100.0 cursor=C "
                  "ax=A windowEdge=false"),
                info("bypass left gesture for resize cursor/window edge")}}));
    EXPECT_EQ(drag(0, {200, 100}), Outcome{});
    EXPECT_EQ(up(0), (Outcome{pass, {info("up without pending Left Button")}}));
}

TEST_F(MouseGestureTest, performsALockThatWasNeverDispatchedAtTheUp)
{
    bind(MouseButton::button4, ModifierSet::shift, MouseDirection::up, MouseAction::Plain::back);
    const MouseGestureDragState locked{{0, 0}, 40, MouseDirection::up, false, now};
    state[MouseButton::button4] = locked;
    EXPECT_EQ(up(3, {}, eventFlag::shift), (Outcome{swallow, {perform(MouseAction::Plain::back)}}));

    state[MouseButton::button4] = locked;
    EXPECT_EQ(up(3), (Outcome{swallow, {info("no binding for Side Back (4) Up")}}));
}

TEST_F(MouseGestureTest, keepsWhatIsPendingWhileItsBindingGoes)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    down(3);
    config.bindings.clear();

    EXPECT_EQ(drag(3, {200, 100}).effects.back(), info("no binding for Side Back (4) Right"));
    EXPECT_EQ(up(3), (Outcome{swallow, {}}));
}

} // namespace
} // namespace brindlex
