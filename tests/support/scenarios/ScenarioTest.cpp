#include "support/scenarios/Scenario.h"

#include "support/scenarios/CounterScenario.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

std::string problemOfCounter(const std::string& text)
{
    const auto scenario = parseScenario<CounterVerbs>("a.txt", text);
    return scenario ? "none" : scenario.error();
}

TEST(Scenario, hasTheMeaningOfItsLines)
{
    const auto scenario
        = parseScenario<CounterVerbs>("a.txt", "# x\nlimit 3\n\n0ms  wait\n1500ms  add 2\n");
    ASSERT_TRUE(scenario) << scenario.error();

    EXPECT_EQ(scenario->preparation.limit, 3);
    ASSERT_EQ(scenario->steps.size(), 2u);
    EXPECT_EQ(scenario->steps[0].time, 0);
    EXPECT_EQ(scenario->steps[0].what.added, 0);
    EXPECT_EQ(scenario->steps[1].time, 1.5);
    EXPECT_EQ(scenario->steps[1].what.added, 2);
}

TEST(Scenario, isRefusedForWordsThatTheSubsystemDoesNotKnow)
{
    EXPECT_EQ(problemOfCounter("limits 3\n0ms wait\n"), "a.txt:1: \"limits\" is unknown");
    EXPECT_EQ(problemOfCounter("limit three\n0ms wait\n"), "a.txt:1: \"three\" is no whole number");
    EXPECT_EQ(problemOfCounter("limit 3 4\n0ms wait\n"), "a.txt:1: \"4\" is one word too many");
    EXPECT_EQ(problemOfCounter("limit 3\n\n0ms sing -> x\n"), "a.txt:3: \"sing\" is unknown");
    EXPECT_EQ(problemOfCounter("limit 3\n0ms add -> x\n"), "a.txt:2: a word is missing");
    EXPECT_EQ(problemOfCounter("limit 3\n0ms wait -> x\n1ms wait 2\n"),
        "a.txt:3: \"2\" is one word too many");
}

TEST(Scenario, isRefusedForWhatIsMissing)
{
    EXPECT_EQ(problemOfCounter("0ms wait\n"), "a.txt: has no limit");
    EXPECT_EQ(problemOfCounter("limit 3\n"), "a.txt: has no step");
}

TEST(Scenario, isRefusedForTheExclusionOfAPlayerThatDoesNotExist)
{
    EXPECT_EQ(problemOfCounter("not on desktop: no screen\nlimit 3\n0ms wait\n"), "none");
    EXPECT_EQ(problemOfCounter("limit 3\nnot on desk: no screen\n0ms wait\n"),
        "a.txt:2: no player is named \"desk\"");
}

} // namespace
} // namespace brindlex
