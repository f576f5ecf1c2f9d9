#include "support/switching/SwitchScenario.h"

#include "support/scenarios/ScenarioFolder.h"
#include "support/switching/MemorySwitchExecutor.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class PlayedSwitchScenario : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(PlayedSwitchScenario, goesAsItIsWritten)
{
    MemorySwitchExecutor executor;
    expectGoesAsWritten(GetParam(), executor);
}

INSTANTIATE_TEST_SUITE_P(InMemory, PlayedSwitchScenario,
    testing::ValuesIn(scenarioFiles(scenarioFolder("inputmethod"), "memory")), scenarioTestName);

TEST(SwitchScenario, existsInNumbersForBothPlayers)
{
    const auto folder = scenarioFolder("inputmethod");
    EXPECT_EQ(scenarioFiles(folder, "memory"), scenarioFiles(folder));
    EXPECT_GE(scenarioFiles(folder, "memory").size(), 36u);
    EXPECT_GE(scenarioFiles(folder, "desktop").size(), 16u);
}

/// The text with its real effects, or its problem.
std::string playedSwitching(const std::string& text)
{
    const auto scenario = parseScenario<SwitchVerbs>("story.txt", text);
    if (!scenario)
        return scenario.error();
    MemorySwitchExecutor executor;
    return play(*scenario, executor);
}

const std::string preparation = "source english English\nrule editor german\n";

TEST(SwitchScenario, showsWhatReallyWentOut)
{
    const auto head = "# A story\nnot on desktop: it is made up\n" + preparation;
    EXPECT_EQ(playedSwitching(
                  head + "0ms start -> nothing true\n9ms activate editor\n10ms wait -> hud x\n"),
        head
            + "\n0ms   start           -> install observers\n"
              "9ms   activate editor -> select german, hud german\n"
              "10ms  wait            -> nothing\n");
}

TEST(SwitchScenario, hidesFromDesktopFilesWhatNobodySees)
{
    EXPECT_EQ(playedSwitching(preparation + "0ms start -> x\n"),
        preparation + "\n0ms  start -> nothing\n");
}

TEST(SwitchScenario, isRefusedWithTheLineThatIsWrong)
{
    const auto refusedStep = [](const std::string& step) {
        return playedSwitching(preparation + "0ms " + step + "\n");
    };
    EXPECT_EQ(refusedStep("sing"), "story.txt:3: \"sing\" is unknown");
    EXPECT_EQ(refusedStep("activate"), "story.txt:3: a word is missing");
    EXPECT_EQ(refusedStep("set hud maybe"), "story.txt:3: \"maybe\" is unknown");
    EXPECT_EQ(refusedStep("start now"), "story.txt:3: \"now\" is one word too many");
    EXPECT_EQ(playedSwitching("rules a b\n0ms start\n"), "story.txt:1: \"rules\" is unknown");
    EXPECT_EQ(playedSwitching("set window 40\n0ms start\n"),
        "story.txt:1: the setting has no such value");
    EXPECT_EQ(playedSwitching("set priority none\n0ms start\n"),
        "story.txt:1: the setting has no such value");
    EXPECT_EQ(playedSwitching("rule a b\n0ms start\n"), "story.txt: has no source");
}

} // namespace
} // namespace brindlex
