#include "platform/linux/inputsources/SelectionCauses.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Cause = SelectionCause;

/// A machine that has run for a while.
const SelectionCauses::Time start{std::chrono::hours{1}};
const auto settleTime = SelectionCauses::settleTime;
const std::vector<Cause> allHints{Cause::choice, Cause::place, Cause::undoing};

TEST(SelectionCauses, takeAChangeThatComesOfNothingForAChoice)
{
    SelectionCauses causes;

    EXPECT_EQ(causes.changed("german", Cause::choice, start), Cause::choice);
}

TEST(SelectionCauses, takeAChangeRightAfterAWindowCameForThatOfItsPlace)
{
    for (const auto delay : {0ms, 50ms, settleTime}) {
        SelectionCauses causes;
        causes.windowCameToFront(start);
        EXPECT_EQ(causes.changed("german", Cause::choice, start + delay), Cause::place);
        EXPECT_EQ(causes.changed("us", Cause::choice, start + delay), Cause::place)
            << "It may take two steps.";
    }
    SelectionCauses causes;
    causes.windowCameToFront(start);
    EXPECT_EQ(causes.changed("german", Cause::choice, start + settleTime + 1ms), Cause::choice);
}

TEST(SelectionCauses, takeAChangeRightAfterASelectionForItsUndoing)
{
    for (const auto delay : {0ms, 300ms, settleTime}) {
        SelectionCauses causes;
        causes.windowCameToFront(start - 1ms);
        causes.selected("german", "us", start);
        EXPECT_EQ(causes.changed("german", Cause::choice, start), Cause::choice) << "its echo";
        EXPECT_EQ(causes.changed("us", Cause::choice, start + delay), Cause::undoing);
    }
    SelectionCauses causes;
    causes.selected("german", "us", start);
    EXPECT_EQ(causes.changed("us", Cause::choice, start + settleTime + 1ms), Cause::choice);
}

TEST(SelectionCauses, takeAChangeThatAHandMayHaveMadeForAChoice)
{
    SelectionCauses causes;
    causes.windowCameToFront(start);
    causes.selected("german", "us", start);
    causes.pressed();

    EXPECT_EQ(causes.changed("us", Cause::choice, start + 1ms), Cause::choice);
}

TEST(SelectionCauses, doNotTakeTheHandThatBroughtTheWindowForOneThatChooses)
{
    SelectionCauses causes;
    causes.pressed();
    causes.windowCameToFront(start);

    EXPECT_EQ(causes.changed("us", Cause::choice, start + 50ms), Cause::place);
}

TEST(SelectionCauses, undoNoSelectionThatHasSettledWithAWindowThatComes)
{
    SelectionCauses causes;
    causes.selected("german", "us", start);
    causes.changed("german", Cause::choice, start);
    causes.windowCameToFront(start + 1min);

    EXPECT_EQ(causes.changed("us", Cause::choice, start + 1min), Cause::place);
}

TEST(SelectionCauses, undoASelectionOnce)
{
    SelectionCauses causes;
    causes.selected("german", "us", start);
    causes.changed("us", Cause::choice, start);

    EXPECT_EQ(causes.changed("russian", Cause::choice, start + 1ms), Cause::place);
}

TEST(SelectionCauses, believeTheBackendThatNobodyHasChosen)
{
    for (const auto hint : {Cause::place, Cause::undoing}) {
        SelectionCauses causes;
        causes.selected("german", "us", start);
        causes.pressed();
        EXPECT_EQ(causes.changed("us", hint, start + 1h), hint);
    }
}

TEST(SelectionCauses, takeARefusalThatEndsElsewhereAfterAPressForAChoice)
{
    SelectionCauses causes;
    causes.selected("german", "us", start);
    causes.pressed();
    EXPECT_EQ(causes.changed("russian", Cause::undoing, start + 1ms), Cause::choice);

    causes.selected("german", "us", start);
    EXPECT_EQ(causes.changed("russian", Cause::undoing, start + 1ms), Cause::undoing)
        << "No hand has pressed anything.";

    causes.selected("german", std::nullopt, start);
    causes.pressed();
    EXPECT_EQ(causes.changed("russian", Cause::undoing, start + 1ms), Cause::choice);
}

TEST(SelectionCauses, takeALateRefusalForThatEvenWhenSomebodyHasTypedMeanwhile)
{
    SelectionCauses causes;
    causes.selected("xkb:de::deu", "xkb:be::deu", start);
    causes.pressed();

    EXPECT_EQ(causes.changed("xkb:be::nld", Cause::undoing, start + 5s), Cause::undoing);
}

TEST(SelectionCauses, takeTheEchoOfASelectionForAChoiceWhateverTheHint)
{
    for (const auto hint : allHints) {
        SelectionCauses causes;
        causes.selected("german", "us", start);
        EXPECT_EQ(causes.changed("german", hint, start), Cause::choice);
    }
}

TEST(SelectionCauses, knowASelectionByItsLayoutWhateverItsLanguageIsCalled)
{
    SelectionCauses causes;
    causes.selected("xkb:be::deu", "us", start);
    EXPECT_FALSE(causes.isLost("xkb:be::nld"));
    EXPECT_EQ(causes.changed("xkb:be::nld", Cause::choice, start), Cause::choice);
}

TEST(SelectionCauses, loseASelectionThatNobodyHasSeenInForce)
{
    SelectionCauses causes;
    EXPECT_FALSE(causes.isLost("us"));
    causes.selected("german", "us", start);
    EXPECT_FALSE(causes.isLost("german"));
    EXPECT_TRUE(causes.isLost("us"));
    causes.changed("us", Cause::choice, start);
    EXPECT_FALSE(causes.isLost("us")) << "It is known now.";

    causes.selected("german", "us", start);
    causes.changed("german", Cause::choice, start);
    EXPECT_FALSE(causes.isLost("us")) << "That would be a change.";
}

} // namespace
} // namespace brindlex
