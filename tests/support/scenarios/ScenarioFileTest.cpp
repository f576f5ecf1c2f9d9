#include "support/scenarios/ScenarioFile.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

std::string problemOfFile(const std::string& text)
{
    const auto file = parseScenarioFile("a.txt", text);
    return file ? "none" : file.error();
}

TEST(ScenarioFile, hasItsLinesWithTheirNumbers)
{
    const auto file = parseScenarioFile("a.txt",
        "# A comment.\nnot on desktop: no screen\nlimit 3\n\n0ms  add 1 -> count 1\n5ms  wait\n");
    ASSERT_TRUE(file) << file.error();
    ASSERT_EQ(file->lines.size(), 5u);

    EXPECT_EQ(file->name, "a.txt");
    EXPECT_EQ(std::get<ScenarioLine::Comment>(file->lines[0].content).text, "# A comment.");
    const auto& exclusion = std::get<ScenarioLine::Exclusion>(file->lines[1].content);
    EXPECT_EQ(exclusion.player, "desktop");
    EXPECT_EQ(exclusion.reason, "no screen");
    EXPECT_EQ(std::get<ScenarioLine::Preparation>(file->lines[2].content).words, "limit 3");
    EXPECT_EQ(file->lines[3].number, 5u);
    const auto& step = std::get<ScenarioLine::Step>(file->lines[3].content);
    EXPECT_EQ(step.milliseconds, 0);
    EXPECT_EQ(step.words, "add 1");
    EXPECT_EQ(step.effects, "count 1");
    EXPECT_EQ(std::get<ScenarioLine::Step>(file->lines[4].content).effects, "");
}

TEST(ScenarioFile, isPlayedByAllThatItDoesNotExclude)
{
    const auto file = parseScenarioFile("a.txt", "not on desktop: no screen\n0ms wait\n");
    ASSERT_TRUE(file) << file.error();
    EXPECT_FALSE(file->isPlayedBy("desktop"));
    EXPECT_TRUE(file->isPlayedBy("memory"));
    EXPECT_TRUE(file->isPlayedBy("desk"));
}

TEST(ScenarioFile, isRefusedWithoutAStep)
{
    EXPECT_EQ(problemOfFile(""), "a.txt: has no step");
    EXPECT_EQ(problemOfFile("\n\n"), "a.txt: has no step");
    EXPECT_EQ(problemOfFile("# A comment.\nlimit 3\n"), "a.txt: has no step");
}

TEST(ScenarioFile, isRefusedForATimeThatIsNone)
{
    const std::string form = " is no time in whole milliseconds, such as 1500ms";
    EXPECT_EQ(problemOfFile("1s wait\n"), "a.txt:1: \"1s\"" + form);
    EXPECT_EQ(problemOfFile("# x\n\n-5ms wait\n"), "a.txt:3: \"-5ms\"" + form);
    EXPECT_EQ(problemOfFile("1.5ms wait\n"), "a.txt:1: \"1.5ms\"" + form);
    EXPECT_EQ(problemOfFile("10 ms wait\n"), "a.txt:1: \"10\"" + form);
    EXPECT_EQ(problemOfFile("99999999999ms wait\n"), "a.txt:1: \"99999999999ms\"" + form);
}

TEST(ScenarioFile, isRefusedForATimeThatGoesBack)
{
    EXPECT_EQ(problemOfFile("9ms wait\n9ms wait\n"), "none");
    EXPECT_EQ(problemOfFile("9ms wait\n# x\n8ms wait\n"), "a.txt:3: goes back in time");
}

TEST(ScenarioFile, isRefusedForAStepWithoutWords)
{
    EXPECT_EQ(problemOfFile("0ms\n"), "a.txt:1: a word is missing");
    EXPECT_EQ(problemOfFile("0ms -> pass\n"), "a.txt:1: a word is missing");
}

TEST(ScenarioFile, isRefusedForAPreparationAfterTheFirstStep)
{
    const std::string problem = "stands after the first step and has no time";
    EXPECT_EQ(problemOfFile("0ms wait\nlimit 3\n"), "a.txt:2: " + problem);
    EXPECT_EQ(problemOfFile("0ms wait\nnot on desktop: no screen\n"), "a.txt:2: " + problem);
}

TEST(ScenarioFile, isRefusedForAnExclusionWithoutAReason)
{
    const std::string problem = "lacks the player or the reason: \"not on <player>: <reason>\"";
    EXPECT_EQ(problemOfFile("not on desktop\n0ms wait\n"), "a.txt:1: " + problem);
    EXPECT_EQ(problemOfFile("not on desktop: \n0ms wait\n"), "a.txt:1: " + problem);
    EXPECT_EQ(problemOfFile("not on : no screen\n0ms wait\n"), "a.txt:1: " + problem);
}

TEST(ScenarioFile, isRefusedWithTheLineEndsOfOtherSystems)
{
    EXPECT_EQ(problemOfFile("# x\n0ms wait\r\n"),
        "a.txt:2: ends with CR LF; the lines of scenarios end with LF alone");
    EXPECT_EQ(problemOfFile("\r\n0ms wait\n"),
        "a.txt:1: ends with CR LF; the lines of scenarios end with LF alone");
}

} // namespace
} // namespace brindlex
