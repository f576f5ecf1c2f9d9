#include "shell/DockResultReaction.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr DockIconPolicyResult changeTo(bool showsDockIcon) { return {true, showsDockIcon}; }

TEST(DockResultReaction, isNoneWhereNothingHasChanged)
{
    for (const bool showsDockIcon : {false, true})
        for (const bool isExplicit : {false, true})
            EXPECT_EQ(dockResultReaction({.result = {false, showsDockIcon},
                          .isExplicit = isExplicit,
                          .isMainWindowVisible = true}),
                DockResultReaction::none);
}

TEST(DockResultReaction, showsTheWindowWithTheIconWhereSomebodyAskedForIt)
{
    EXPECT_EQ(dockResultReaction({.result = changeTo(true), .isExplicit = true}),
        DockResultReaction::show);
    EXPECT_EQ(dockResultReaction({.result = changeTo(true), .isMainWindowVisible = true}),
        DockResultReaction::none);
}

TEST(DockResultReaction, showsAWindowThatTheUserHasClosedWhereSomebodyAskedForIt)
{
    EXPECT_EQ(dockResultReaction(
                  {.result = changeTo(true), .isExplicit = true, .isMainWindowClosedByUser = true}),
        DockResultReaction::show);
}

TEST(DockResultReaction, raisesAVisibleWindowAgainWhenTheIconGoes)
{
    for (const bool isExplicit : {false, true})
        EXPECT_EQ(
            dockResultReaction(
                {.result = changeTo(false), .isExplicit = isExplicit, .isMainWindowVisible = true}),
            DockResultReaction::raiseAgain);
}

TEST(DockResultReaction, isNoneWhenTheIconGoesWithoutAVisibleWindow)
{
    EXPECT_EQ(dockResultReaction({.result = changeTo(false), .isExplicit = true}),
        DockResultReaction::none);
    EXPECT_EQ(dockResultReaction({.result = changeTo(false),
                  .isMainWindowClosedByUser = true,
                  .isMainWindowVisible = true}),
        DockResultReaction::none);
}

} // namespace
} // namespace brindlex
