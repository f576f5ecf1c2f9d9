#include "mouse/MouseActionTag.h"

#include <gtest/gtest.h>

#include <utility>

namespace brindlex {
namespace {

using Plain = MouseAction::Plain;
using Tag = MouseActionTag;

const MouseAction::Any stroke = MouseAction::SendKeystroke{12, ModifierSet::command};
const MouseAction::Any shellCommand = MouseAction::RunShellCommand{"true"};

TEST(MouseActionTag, showsEachActionUnderOneChoice)
{
    const std::pair<MouseAction::Any, Tag> rows[]{
        {Plain::missionControl, Tag::missionControl},
        {Plain::switchSpaceRight, Tag::switchSpaceRight},
        {stroke, Tag::sendKeystroke},
        {Plain::switchSpaceLeft, Tag::switchSpaceLeft},
        {Plain::back, Tag::switchSpaceLeft},
        {Plain::forward, Tag::switchSpaceLeft},
        {Plain::showDesktop, Tag::switchSpaceLeft},
        {shellCommand, Tag::switchSpaceLeft},
    };
    for (const auto& [action, tag] : rows)
        EXPECT_EQ(tagOf(action), tag);
}

TEST(MouseActionTag, standsForAnAction)
{
    EXPECT_EQ(actionWithTag(Tag::missionControl), MouseAction::Any(Plain::missionControl));
    EXPECT_EQ(actionWithTag(Tag::switchSpaceLeft), MouseAction::Any(Plain::switchSpaceLeft));
    EXPECT_EQ(actionWithTag(Tag::switchSpaceRight), MouseAction::Any(Plain::switchSpaceRight));
    EXPECT_EQ(
        actionWithTag(Tag::sendKeystroke), MouseAction::Any(MouseAction::SendKeystroke{-1, {}}));
}

TEST(MouseActionTag, hasTheKeyOfAKeystrokeAlone)
{
    EXPECT_EQ(keystrokeOf(stroke), (HotkeyCombo{12, ModifierSet::command}));
    EXPECT_EQ(keystrokeOf(Plain::back), (HotkeyCombo{-1, {}}));
    EXPECT_EQ(keystrokeOf(shellCommand), (HotkeyCombo{-1, {}}));
}

TEST(MouseActionTag, changesTheKeyOfAKeystrokeAlone)
{
    const HotkeyCombo combo{7, ModifierSet::shift};
    EXPECT_EQ(withKeystroke(stroke, combo),
        MouseAction::Any(MouseAction::SendKeystroke{7, ModifierSet::shift}));
    EXPECT_EQ(withKeystroke(Plain::back, combo), MouseAction::Any(Plain::back));
    EXPECT_EQ(withKeystroke(shellCommand, combo), shellCommand);
}

} // namespace
} // namespace brindlex
