#include "mouse/MouseClick.h"

#include "mouse/MouseEventTag.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Outcome = MouseClickOutcome;
constexpr auto pass = EventVerdict::pass;
constexpr auto swallow = EventVerdict::swallow;

class MouseClickTest : public testing::Test {
protected:
    void bind(MouseButton button, ModifierSet modifiers, MouseAction::Any action)
    {
        config.bindings.push_back({{}, button, modifiers, std::move(action)});
    }
    Outcome step(EventType type, std::int64_t button, std::uint64_t flags = 0, std::int64_t tag = 0)
    {
        return reduceMouseClick({type, {}, flags,
                                    {{EventField::mouseEventButtonNumber, button},
                                        {EventField::eventSourceUserData, tag}}},
            state, config);
    }
    Outcome down(std::int64_t button, std::uint64_t flags = 0, std::int64_t tag = 0)
    {
        return step(EventType::otherMouseDown, button, flags, tag);
    }
    Outcome up(std::int64_t button, std::int64_t tag = 0)
    {
        return step(EventType::otherMouseUp, button, 0, tag);
    }

    MouseClickConfig config;
    MouseClickState state;
};

TEST_F(MouseClickTest, performsAndHidesThePressAndTheRelease)
{
    bind(MouseButton::button4, {}, MouseAction::Plain::back);

    EXPECT_EQ(down(3), (Outcome{swallow, MouseAction::Plain::back}));
    EXPECT_EQ(up(3), (Outcome{swallow, {}}));
    EXPECT_EQ(up(3), (Outcome{pass, {}}));
    EXPECT_EQ(state, MouseClickState{});
}

TEST_F(MouseClickTest, passesAReleaseWhosePressWasNotHidden)
{
    bind(MouseButton::button4, {}, MouseAction::Plain::back);

    EXPECT_EQ(up(3), Outcome{});
    EXPECT_EQ(down(2), Outcome{});
    EXPECT_EQ(up(2), Outcome{});
}

TEST_F(MouseClickTest, needsExactlyItsModifiers)
{
    bind(MouseButton::button3, ModifierSet::command, MouseAction::Plain::back);

    EXPECT_EQ(down(2, eventFlag::command | eventFlag::shift), Outcome{});
    EXPECT_EQ(down(2), Outcome{});
    EXPECT_EQ(down(2, eventFlag::command | eventFlag::capsLock),
        (Outcome{swallow, MouseAction::Plain::back}));
}

TEST_F(MouseClickTest, takesTheFirstBindingThatFits)
{
    bind(MouseButton::button3, {}, MouseAction::Plain::forward);
    bind(MouseButton::button3, {}, MouseAction::Plain::back);

    EXPECT_EQ(down(2).action, MouseAction::Any(MouseAction::Plain::forward));
}

TEST_F(MouseClickTest, passesAButtonAboveTheFive)
{
    for (const auto button : allCases<MouseButton>())
        bind(button, {}, MouseAction::Plain::back);
    for (const std::int64_t number : {5, 63, -1}) {
        EXPECT_EQ(down(number), Outcome{});
        EXPECT_EQ(up(number), Outcome{});
    }
}

TEST_F(MouseClickTest, performsForAReplayedPressAndLetsItPass)
{
    bind(MouseButton::button4, {}, MouseAction::Plain::back);
    const MouseClickState before = state;

    EXPECT_EQ(down(3, 0, mouseEventTag::replay), (Outcome{pass, MouseAction::Plain::back}));
    EXPECT_EQ(up(3, mouseEventTag::replay), Outcome{});
    EXPECT_EQ(state, before);
}

TEST_F(MouseClickTest, leavesItsNoteOfAHiddenPressAtAReplayedRelease)
{
    bind(MouseButton::button4, {}, MouseAction::Plain::back);
    down(3);

    EXPECT_EQ(up(3, mouseEventTag::replay), Outcome{});
    EXPECT_EQ(up(3), (Outcome{swallow, {}}));
}

TEST_F(MouseClickTest, treatsAnotherTagAsNone)
{
    bind(MouseButton::button4, {}, MouseAction::Plain::back);

    EXPECT_EQ(down(3, 0, mouseEventTag::scroll).verdict, swallow);
}

TEST_F(MouseClickTest, workWhetherTheyAreEnabledOrNot)
{
    config.enabled = false;
    bind(MouseButton::button4, {}, MouseAction::Plain::back);

    EXPECT_EQ(down(3), (Outcome{swallow, MouseAction::Plain::back}));
}

TEST_F(MouseClickTest, passesEventsOfOtherTypes)
{
    bind(MouseButton::left, {}, MouseAction::Plain::back);
    bind(MouseButton::button3, {}, MouseAction::Plain::back);

    EXPECT_EQ(step(EventType::leftMouseDown, 0), Outcome{});
    EXPECT_EQ(step(EventType::otherMouseDragged, 2), Outcome{});
}

TEST_F(MouseClickTest, takesOnlyTheOtherButtons)
{
    bind(MouseButton::left, {}, MouseAction::Plain::back);
    bind(MouseButton::right, {}, MouseAction::Plain::back);
    bind(MouseButton::button4, ModifierSet::command, MouseAction::Plain::back);

    EXPECT_EQ(mouseClickEventMask, 0x6000000u);
    EXPECT_EQ(eventTriggers(config), (EventTriggers{{{3, eventFlag::command}}, {}, false}));
}

} // namespace
} // namespace brindlex
