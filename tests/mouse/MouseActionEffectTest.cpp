#include "mouse/MouseActionEffect.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace brindlex {
namespace {

using Effect = MouseActionEffect::Any;

TEST(MouseActionEffect, andLabelAreThoseOfTheActionsRow)
{
    const std::vector<std::tuple<MouseAction::Any, std::string, Effect>> rows{
        {MouseAction::Plain::missionControl, "Mission Control",
            MouseActionEffect::OpenApplication{"/System/Applications/Mission Control.app"}},
        {MouseAction::Plain::back, "Back", MouseActionEffect::PostKeystroke{33, 0x100000}},
        {MouseAction::Plain::forward, "Forward", MouseActionEffect::PostKeystroke{30, 0x100000}},
        {MouseAction::Plain::showDesktop, "Show Desktop", MouseActionEffect::PostKeystroke{103, 0}},
        {MouseAction::Plain::switchSpaceLeft, "Switch Space Left",
            MouseActionEffect::SwitchSpace{false}},
        {MouseAction::Plain::switchSpaceRight, "Switch Space Right",
            MouseActionEffect::SwitchSpace{true}},
        {MouseAction::SendKeystroke{49, ModifierSet{15}}, "Custom Shortcut",
            MouseActionEffect::PostKeystroke{49, 0x1E0000}},
        {MouseAction::RunShellCommand{"echo hi"}, "Run Shell Command",
            MouseActionEffect::LaunchProcess{"/bin/zsh", {"-c", "echo hi"}}},
    };
    for (const auto& [action, label, effect] : rows) {
        EXPECT_EQ(logLabel(action), label);
        EXPECT_EQ(effectOf(action), effect) << label;
    }
}

TEST(MouseActionEffect, ofAnEmptyCommandStillLaunchesTheShell)
{
    EXPECT_EQ(effectOf(MouseAction::RunShellCommand{""}),
        Effect(MouseActionEffect::LaunchProcess{"/bin/zsh", {"-c", ""}}));
}

TEST(MouseActionEffect, takesKeyCodesOfSixteenBits)
{
    EXPECT_EQ(effectOf(MouseAction::SendKeystroke{0, {}}),
        Effect(MouseActionEffect::PostKeystroke{0, 0}));
    EXPECT_EQ(effectOf(MouseAction::SendKeystroke{65535, {}}),
        Effect(MouseActionEffect::PostKeystroke{65535, 0}));
    EXPECT_DEATH(effectOf(MouseAction::SendKeystroke{-1, {}}), "key code -1");
    EXPECT_DEATH(effectOf(MouseAction::SendKeystroke{65536, {}}), "key code 65536");
}

} // namespace
} // namespace brindlex
