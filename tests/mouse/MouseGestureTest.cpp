#include "mouse/MouseGesture.h"

#include "mouse/MouseEventTag.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

namespace brindlex {
namespace {

using Effect = MouseGestureEffect::Any;
using Outcome = MouseGestureOutcome;
constexpr auto pass = EventVerdict::pass;
constexpr auto swallow = EventVerdict::swallow;

Effect info(const std::string& text)
{
    return MouseGestureEffect::LogInfo{"MouseGesture: " + text};
}
Effect perform(MouseAction::Any action) { return MouseGestureEffect::Perform{std::move(action)}; }
Effect replay(MouseButton button, Point point)
{
    return MouseGestureEffect::ReplayClick{button, point};
}

/// What a press, a release and a drag of a button are, in this order.
struct Types {
    EventType down, up, drag;
};
Types typesOf(std::int64_t button)
{
    if (button == 0)
        return {EventType::leftMouseDown, EventType::leftMouseUp, EventType::leftMouseDragged};
    if (button == 1)
        return {EventType::rightMouseDown, EventType::rightMouseUp, EventType::rightMouseDragged};
    return {EventType::otherMouseDown, EventType::otherMouseUp, EventType::otherMouseDragged};
}

class MouseGestureTest : public testing::Test {
protected:
    void bind(MouseButton button, ModifierSet modifiers, MouseDirection direction,
        MouseAction::Any action)
    {
        config.bindings.push_back({{}, button, modifiers, direction, std::move(action)});
    }

    Outcome step(EventType type, std::int64_t button, Point point, std::uint64_t flags = 0,
        std::int64_t tag = 0)
    {
        const Event event{type, point, flags,
            {{EventField::mouseEventButtonNumber, button}, {EventField::eventSourceUserData, tag}}};
        return reduceMouseGesture(event, state, config, now, [this](Point asked) {
            asks.push_back(asked);
            return decision;
        });
    }
    Outcome down(std::int64_t button, Point point = {100, 100}, std::uint64_t flags = 0)
    {
        return step(typesOf(button).down, button, point, flags);
    }
    Outcome up(std::int64_t button, Point point = {100, 100}, std::uint64_t flags = 0)
    {
        return step(typesOf(button).up, button, point, flags);
    }
    Outcome drag(std::int64_t button, Point point, std::uint64_t flags = 0)
    {
        return step(typesOf(button).drag, button, point, flags);
    }

    MouseGestureConfig config;
    MouseGestureState state;
    Date now{1000};
    MouseResizeDragDecision decision{false, "none", {100, 100}, "C", "A", false};
    std::vector<Point> asks;
};

TEST_F(MouseGestureTest, performsTheActionWhenTheDirectionLocks)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});

    EXPECT_EQ(down(3), (Outcome{swallow, {info("pending Side Back (4)")}}));
    EXPECT_EQ(drag(3, {129, 100}), (Outcome{swallow, {}}));
    EXPECT_EQ(drag(3, {130, 100}),
        (Outcome{swallow,
            {info("locked Side Back (4) Right"), info("dispatched on lock Side Back (4) Right"),
                perform(MouseAction::Forward{})}}));
    EXPECT_EQ(drag(3, {100, 300}), (Outcome{swallow, {}}));
    EXPECT_EQ(up(3), (Outcome{swallow, {}}));
    EXPECT_EQ(state, MouseGestureState{});
}

TEST_F(MouseGestureTest, endsWithNothingForADirectionWithoutBinding)
{
    bind(MouseButton::right, {}, MouseDirection::up, MouseAction::Back{});
    down(1);

    EXPECT_EQ(drag(1, {60, 100}),
        (Outcome{swallow,
            {info("locked Right Button Left"), info("no binding for Right Button Left")}}));
    EXPECT_EQ(drag(1, {100, 0}), (Outcome{swallow, {}}));
    EXPECT_EQ(up(1), (Outcome{swallow, {}}));
}

TEST_F(MouseGestureTest, givesBackAClickThatDidNotMove)
{
    bind(MouseButton::button3, {}, MouseDirection::up, MouseAction::Back{});
    down(2, {7, 8});
    drag(2, {27, 8});

    EXPECT_EQ(up(2, {27, 8}), (Outcome{swallow, {replay(MouseButton::button3, {7, 8})}}));
}

TEST_F(MouseGestureTest, givesBackARightClickUpToSixPoints)
{
    bind(MouseButton::right, {}, MouseDirection::up, MouseAction::Back{});
    down(1);
    drag(1, {106, 100});
    EXPECT_EQ(up(1), (Outcome{swallow, {replay(MouseButton::right, {100, 100})}}));

    down(1);
    drag(1, {106.5, 100});
    EXPECT_EQ(up(1), (Outcome{swallow, {info("suppress click replay Right Button")}}));
}

TEST_F(MouseGestureTest, limitsTheWanderingOfTheRightButtonAlone)
{
    for (const auto button :
        {MouseButton::left, MouseButton::button3, MouseButton::button4, MouseButton::button5}) {
        config.bindings.clear();
        bind(button, {}, MouseDirection::up, MouseAction::Back{});
        const auto number = storedValue(button);
        down(number);
        drag(number, {129, 100});
        EXPECT_EQ(up(number), (Outcome{swallow, {replay(button, {100, 100})}}));
    }
}

TEST_F(MouseGestureTest, passesAPressWithOtherModifiers)
{
    bind(MouseButton::button4, ModifierSet::command, MouseDirection::up, MouseAction::Back{});

    EXPECT_EQ(down(3), Outcome{});
    EXPECT_EQ(down(3, {}, eventFlag::command | eventFlag::shift), Outcome{});
    EXPECT_EQ(drag(3, {0, 0}), Outcome{});
    EXPECT_EQ(up(3), (Outcome{pass, {info("up without pending Side Back (4)")}}));
    EXPECT_EQ(down(3, {}, eventFlag::command | eventFlag::capsLock).verdict, swallow);
}

TEST_F(MouseGestureTest, readsTheModifiersAgainWhenTheDirectionLocks)
{
    bind(MouseButton::button4, ModifierSet::command, MouseDirection::up, MouseAction::Back{});
    down(3, {100, 100}, eventFlag::command);

    EXPECT_EQ(drag(3, {100, 70}),
        (Outcome{
            swallow, {info("locked Side Back (4) Up"), info("no binding for Side Back (4) Up")}}));
    EXPECT_EQ(up(3, {100, 70}, eventFlag::command), (Outcome{swallow, {}}));
}

TEST_F(MouseGestureTest, takesTheFirstBindingThatFits)
{
    bind(MouseButton::button4, {}, MouseDirection::down, MouseAction::Back{});
    bind(MouseButton::button4, {}, MouseDirection::up, MouseAction::Forward{});
    bind(MouseButton::button4, {}, MouseDirection::up, MouseAction::ShowDesktop{});
    down(3);

    EXPECT_EQ(drag(3, {100, 0}).effects.back(), perform(MouseAction::Forward{}));
}

TEST_F(MouseGestureTest, readsTheThresholdAtEachEvent)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    down(3);
    config.distanceThreshold = 60;
    EXPECT_EQ(drag(3, {150, 100}), (Outcome{swallow, {}}));
    config.distanceThreshold = 10;
    EXPECT_EQ(drag(3, {140, 100}), (Outcome{swallow, {}}));
    EXPECT_EQ(drag(3, {151, 100}).effects.size(), 3u);
}

TEST_F(MouseGestureTest, prunesLostPressesAtTwoSecondsByTheNextDown)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    down(3);
    now = Date{1001.9999};
    EXPECT_EQ(down(2), Outcome{});
    now = Date{1002};
    EXPECT_EQ(down(2), (Outcome{pass, {info("pending timed out before next down Side Back (4)")}}));
    EXPECT_EQ(state, MouseGestureState{});
}

TEST_F(MouseGestureTest, prunesByADownOfAnyButtonBeforeAllElse)
{
    bind(MouseButton::left, {}, MouseDirection::right, MouseAction::Forward{});
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Forward{});
    down(0);
    down(4);
    now = Date{1003};

    EXPECT_EQ(down(9).effects,
        (std::vector{info("pending timed out before next down Left Button"),
            info("pending timed out before next down Side Forward (5)")}));
}

TEST_F(MouseGestureTest, keepsAPressOfExactlyTwoSecondsForADrag)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
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
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
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
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    down(3);
    drag(3, {200, 100});
    now = Date{1003};

    EXPECT_EQ(up(3), (Outcome{pass, {info("pending timed out before up Side Back (4)")}}));
}

TEST_F(MouseGestureTest, doesNotTimeOutWhenTheClockIsSetBack)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    down(3);
    now = Date{-500000};

    EXPECT_EQ(drag(3, {110, 100}), (Outcome{swallow, {}}));
    EXPECT_EQ(up(3).effects, (std::vector{replay(MouseButton::button4, {100, 100})}));
}

TEST_F(MouseGestureTest, putsANewPressInThePlaceOfAnOldOne)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    down(3, {0, 0});
    drag(3, {50, 0});
    now = Date{1001};

    EXPECT_EQ(down(3, {300, 0}), (Outcome{swallow, {info("pending Side Back (4)")}}));
    EXPECT_EQ(up(3).effects, (std::vector{replay(MouseButton::button4, {300, 0})}));
}

TEST_F(MouseGestureTest, keepsTheButtonsApart)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Back{});
    down(3, {0, 0});
    down(4, {10, 0});

    EXPECT_EQ(drag(4, {60, 0}).effects.back(), perform(MouseAction::Back{}));
    EXPECT_EQ(up(3).effects, (std::vector{replay(MouseButton::button4, {0, 0})}));
    EXPECT_EQ(up(4), (Outcome{swallow, {}}));
}

TEST_F(MouseGestureTest, passesAButtonThatIsNone)
{
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Forward{});
    for (const std::int64_t number : {5, 11, -1}) {
        EXPECT_EQ(step(EventType::otherMouseDown, number, {}), Outcome{});
        EXPECT_EQ(step(EventType::otherMouseDragged, number, {900, 0}), Outcome{});
        EXPECT_EQ(step(EventType::otherMouseUp, number, {}), Outcome{});
    }
}

TEST_F(MouseGestureTest, saysNothingOfAnUpThatNoBindingUses)
{
    bind(MouseButton::button5, {}, MouseDirection::right, MouseAction::Forward{});

    EXPECT_EQ(up(2), Outcome{});
    EXPECT_EQ(up(4), (Outcome{pass, {info("up without pending Side Forward (5)")}}));
}

TEST_F(MouseGestureTest, passesItsOwnReplaysUnseen)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    for (const auto type :
        {EventType::otherMouseDown, EventType::otherMouseDragged, EventType::otherMouseUp})
        EXPECT_EQ(step(type, 3, {500, 0}, 0, 0x4D4F534547535452), Outcome{});
    EXPECT_EQ(state, MouseGestureState{});
    EXPECT_EQ(step(EventType::otherMouseDown, 3, {}, 0, 0x4D4F53455343524C).verdict, swallow);
}

TEST_F(MouseGestureTest, passesEventsOfOtherTypes)
{
    bind(MouseButton::left, {}, MouseDirection::right, MouseAction::Forward{});
    for (const auto type : {EventType::mouseMoved, EventType::keyDown, EventType::scrollWheel,
             EventType::tapDisabledByTimeout})
        EXPECT_EQ(step(type, 0, {}), Outcome{});
}

TEST_F(MouseGestureTest, asksAboutResizingOnlyForALeftPressWithABinding)
{
    bind(MouseButton::left, ModifierSet::option, MouseDirection::right, MouseAction::Forward{});
    bind(MouseButton::right, {}, MouseDirection::right, MouseAction::Forward{});
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
    bind(MouseButton::left, {}, MouseDirection::right, MouseAction::Forward{});
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
    bind(MouseButton::button4, ModifierSet::shift, MouseDirection::up, MouseAction::Back{});
    const MouseGestureDragState locked{{0, 0}, 40, MouseDirection::up, false, now};
    state[MouseButton::button4] = locked;
    EXPECT_EQ(up(3, {}, eventFlag::shift), (Outcome{swallow, {perform(MouseAction::Back{})}}));

    state[MouseButton::button4] = locked;
    EXPECT_EQ(up(3), (Outcome{swallow, {info("no binding for Side Back (4) Up")}}));
}

TEST_F(MouseGestureTest, keepsWhatIsPendingWhileItsBindingGoes)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Forward{});
    down(3);
    config.bindings.clear();

    EXPECT_EQ(drag(3, {200, 100}).effects.back(), info("no binding for Side Back (4) Right"));
    EXPECT_EQ(up(3), (Outcome{swallow, {}}));
}

TEST(eventMask, isTheUnionOfTheButtonGroupsInUse)
{
    const auto maskOf = [](std::vector<MouseButton> buttons) {
        std::vector<MouseGestureBinding> bindings;
        for (const auto button : buttons)
            bindings.push_back({{}, button, {}, MouseDirection::up, MouseAction::Back{}});
        return eventMask(true, bindings);
    };
    EXPECT_EQ(maskOf({}), 0u);
    EXPECT_EQ(maskOf({MouseButton::left}), 0x46u);
    EXPECT_EQ(maskOf({MouseButton::right}), 0x98u);
    EXPECT_EQ(maskOf({MouseButton::button3}), 0xE000000u);
    EXPECT_EQ(maskOf({MouseButton::button4}), 0xE000000u);
    EXPECT_EQ(maskOf({MouseButton::button5}), 0xE000000u);
    EXPECT_EQ(
        maskOf({MouseButton::button5, MouseButton::right, MouseButton::left, MouseButton::right}),
        0xE0000DEu);
}

TEST(eventMask, isZeroWhenGesturesAreOff)
{
    EXPECT_EQ(
        eventMask(false, {{{}, MouseButton::left, {}, MouseDirection::up, MouseAction::Back{}}}),
        0u);
}

TEST(eventTriggers, ofGesturesAreTheirButtonsWithAnyModifiers)
{
    MouseGestureConfig config;
    config.bindings
        = {{{}, MouseButton::button5, ModifierSet::shift, MouseDirection::up, MouseAction::Back{}},
            {{}, MouseButton::left, {}, MouseDirection::up, MouseAction::Back{}},
            {{}, MouseButton::button5, {}, MouseDirection::up, MouseAction::Back{}}};

    EXPECT_EQ(eventTriggers(config), (EventTriggers{{{0, {}}, {4, {}}}, {}, false}));
}

TEST(replayedClick, isATaggedPairWithTheRowOfItsButton)
{
    using Row = std::tuple<MouseButton, std::uint32_t, std::uint32_t, std::int64_t>;
    const std::vector<Row> rows{
        {MouseButton::left, 1, 2, 0},
        {MouseButton::right, 3, 4, 1},
        {MouseButton::button3, 25, 26, 2},
        {MouseButton::button4, 25, 26, 3},
        {MouseButton::button5, 25, 26, 4},
    };
    for (const auto& [button, down, up, number] : rows) {
        const EventFields fields{{EventField{3}, number}, {EventField{42}, 0x4D4F534547535452}};
        EXPECT_EQ(replayedClick(button, {5, 6}),
            (std::array{SyntheticEvent{EventType{down}, Point{5, 6}, {}, fields},
                SyntheticEvent{EventType{up}, Point{5, 6}, {}, fields}}));
    }
}

TEST(mouseEventTag, isReadableInASCII)
{
    const auto text = [](std::int64_t tag) {
        std::string result;
        for (int shift = 56; shift >= 0; shift -= 8)
            result += static_cast<char>((tag >> shift) & 0xFF);
        return result;
    };
    EXPECT_EQ(text(mouseEventTag::replay), "MOSEGSTR");
    EXPECT_EQ(text(mouseEventTag::scroll), "MOSESCRL");
}

} // namespace
} // namespace brindlex
