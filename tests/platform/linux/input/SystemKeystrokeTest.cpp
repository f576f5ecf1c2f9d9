#include "platform/linux/input/SystemKeystroke.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Meaning = SystemKeystroke::Meaning;

TEST(SystemKeystroke, goesBackAndForwardAsApplicationsHereDo)
{
    EXPECT_EQ(systemKeystroke(33, eventFlag::command), (SystemKeystroke{Meaning::button, 3, 0}));
    EXPECT_EQ(systemKeystroke(30, eventFlag::command), (SystemKeystroke{Meaning::button, 4, 0}));
}

TEST(SystemKeystroke, showsTheDesktop)
{
    EXPECT_EQ(systemKeystroke(103, 0).meaning, Meaning::showDesktop);
}

TEST(SystemKeystroke, leavesEveryOtherKeystrokeAlone)
{
    EXPECT_EQ(systemKeystroke(33, 0), (SystemKeystroke{Meaning::key, 33, 0}));
    EXPECT_EQ(systemKeystroke(33, eventFlag::command | eventFlag::shift),
        (SystemKeystroke{Meaning::key, 33, eventFlag::command | eventFlag::shift}));
    EXPECT_EQ(systemKeystroke(103, eventFlag::shift),
        (SystemKeystroke{Meaning::key, 103, eventFlag::shift}));
    EXPECT_EQ(systemKeystroke(0, eventFlag::command),
        (SystemKeystroke{Meaning::key, 0, eventFlag::command}));
}

} // namespace
} // namespace brindlex
