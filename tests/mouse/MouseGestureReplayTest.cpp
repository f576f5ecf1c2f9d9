#include "mouse/MouseGestureFixture.h"

#include <array>
#include <tuple>

namespace brindlex {
namespace {

TEST_F(MouseGestureTest, givesBackAClickThatDidNotMove)
{
    bind(MouseButton::button3, {}, MouseDirection::up, MouseAction::Plain::back);
    down(2, {7, 8});
    drag(2, {27, 8});

    EXPECT_EQ(up(2, {27, 8}), (Outcome{swallow, {replay(MouseButton::button3, {7, 8})}}));
}

TEST_F(MouseGestureTest, givesBackARightClickUpToSixPoints)
{
    bind(MouseButton::right, {}, MouseDirection::up, MouseAction::Plain::back);
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
        bind(button, {}, MouseDirection::up, MouseAction::Plain::back);
        const auto number = storedValue(button);
        down(number);
        drag(number, {129, 100});
        EXPECT_EQ(up(number), (Outcome{swallow, {replay(button, {100, 100})}}));
    }
}

TEST_F(MouseGestureTest, passesItsOwnReplaysUnseen)
{
    bind(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    for (const auto type :
        {EventType::otherMouseDown, EventType::otherMouseDragged, EventType::otherMouseUp})
        EXPECT_EQ(step(type, 3, {500, 0}, 0, 0x4D4F534547535452), Outcome{});
    EXPECT_EQ(state, MouseGestureState{});
    EXPECT_EQ(step(EventType::otherMouseDown, 3, {}, 0, 0x4D4F53455343524C).verdict, swallow);
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

} // namespace
} // namespace brindlex
