#include "mouse/MemoryMouseExecutor.h"
#include "support/scenarios/ScenarioFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class PlayedMouseScenario : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(PlayedMouseScenario, goesAsItIsWritten)
{
    MemoryMouseExecutor executor;
    expectGoesAsWritten(GetParam(), executor);
}

INSTANTIATE_TEST_SUITE_P(InMemory, PlayedMouseScenario,
    testing::ValuesIn(scenarioFiles(scenarioFolder("mouse"), "memory")), scenarioTestName);

TEST(MouseScenario, existsInNumbersForBothPlayers)
{
    const auto folder = scenarioFolder("mouse");
    EXPECT_EQ(scenarioFiles(folder, "memory"), scenarioFiles(folder));
    EXPECT_GE(scenarioFiles(folder, "memory").size(), 71u);
    EXPECT_GE(scenarioFiles(folder, "hardware").size(), 63u);
}

std::string problemOfLine(const std::string& line)
{
    const auto scenario = parseScenario<MouseVerbs>("a.txt", line + "\n0ms wait\n");
    return scenario ? "" : scenario.error();
}

TEST(MouseScenario, isRefusedWithTheLineThatIsWrong)
{
    EXPECT_EQ(problemOfLine("0ms sing"), "a.txt:1: \"sing\" is unknown");
    EXPECT_EQ(problemOfLine("0ms down button6"), "a.txt:1: \"button6\" is unknown");
    EXPECT_EQ(problemOfLine("0ms drag left"), "a.txt:1: a word is missing");
    EXPECT_EQ(problemOfLine("0ms drag left 1,2,3"), "a.txt:1: a place is written as 100,100");
    EXPECT_EQ(problemOfLine("0ms wheel 1.5"), "a.txt:1: \"1.5\" is no whole number");
    EXPECT_EQ(problemOfLine("0ms up left with alt"), "a.txt:1: \"alt\" is unknown");
    EXPECT_EQ(problemOfLine("0ms set gestures maybe"), "a.txt:1: \"maybe\" is unknown");
    EXPECT_EQ(problemOfLine("gesture left right dance"), "a.txt:1: \"dance\" is no action");
    EXPECT_EQ(problemOfLine("gesture left in back"), "a.txt:1: \"in\" is no direction");
    EXPECT_EQ(problemOfLine("scroll sideways"), "a.txt:1: \"sideways\" is unknown");
    EXPECT_EQ(problemOfLine("threshold 4 points"), "a.txt:1: \"points\" is one word too many");
}

} // namespace
} // namespace brindlex
