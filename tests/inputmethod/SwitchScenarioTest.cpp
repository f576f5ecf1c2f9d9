#include "support/switching/SwitchScenario.h"

#include "support/basics/TemporaryFolder.h"
#include "support/switching/MemorySwitchExecutor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace brindlex {
namespace {

const std::filesystem::path folder = std::filesystem::path(TESTS) / "inputmethod" / "scenarios";

class SwitchScenarios : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(SwitchScenarios, playInMemory)
{
    const auto written = contentOf(GetParam());
    const auto scenario = parseSwitchScenario(written);
    ASSERT_TRUE(scenario) << scenario.error();
    ASSERT_TRUE(scenario->players.contains("memory"));
    MemorySwitchExecutor executor;
    EXPECT_EQ(written, playSwitchScenario(*scenario, executor)) << GetParam();
}

std::string caseName(const testing::TestParamInfo<std::filesystem::path>& file)
{
    auto name = file.param.stem().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char byte) { return !std::isalnum(byte); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(
    Files, SwitchScenarios, testing::ValuesIn(switchScenarioFiles(folder)), caseName);

TEST(SwitchScenario, existsInNumbersForBothPlayers)
{
    std::size_t desktop = 0;
    const auto files = switchScenarioFiles(folder);
    for (const auto& file : files) {
        const auto scenario = parseSwitchScenario(contentOf(file));
        ASSERT_TRUE(scenario) << file << scenario.error();
        desktop += scenario->players.contains("desktop");
    }
    EXPECT_GE(files.size(), 25u);
    EXPECT_GE(desktop, 8u);
}

const std::string head = "plays: memory\nsource: english English\nrule: editor german\n";

std::string played(const std::string& text)
{
    const auto scenario = parseSwitchScenario(text);
    if (!scenario)
        return scenario.error();
    MemorySwitchExecutor executor;
    return playSwitchScenario(*scenario, executor);
}

TEST(SwitchScenario, tellsWhatReallyWentOut)
{
    EXPECT_EQ(played("# A story\n" + head
                  + "\n0ms start -> nothing true\n9ms activate editor\n10ms wait -> hud x\n"),
        "# A story\n" + head
            + "\n0ms start            -> install observers\n"
              "9ms activate editor  -> select german, hud german\n10ms wait\n");
}

TEST(SwitchScenario, hidesFromDesktopFilesWhatNobodySees)
{
    const std::string desktop = "plays: memory, desktop\nsource: english English\n";
    EXPECT_EQ(played(desktop + "0ms start -> x\n"), desktop + "0ms start\n");
}

TEST(SwitchScenario, isRefusedWithTheLineThatIsWrong)
{
    EXPECT_EQ(played(head + "0ms sing\n"), "line 4 has an unknown event: 0ms sing");
    EXPECT_EQ(played(head + "0ms activate\n"), "line 4 has an unknown event: 0ms activate");
    EXPECT_EQ(played(head + "9ms wait\n8ms wait\n"), "line 5 goes back in time: 8ms wait");
    EXPECT_EQ(played(head + "0ms wait\nrule: a b\n"),
        "line 5 is neither of the header nor a step: rule: a b");
    EXPECT_EQ(played("rules: a b\n"), "line 1 is neither of the header nor a step: rules: a b");
    EXPECT_EQ(
        played("set: hud maybe\n"), "line 1 is neither of the header nor a step: set: hud maybe");
    EXPECT_EQ(
        played("set: window 40\n"), "line 1 is neither of the header nor a step: set: window 40");
    EXPECT_EQ(played("1s wait\n"), "line 1 is neither of the header nor a step: 1s wait");
    EXPECT_EQ(played(head), "the file lacks its players, its sources or its steps");
}

} // namespace
} // namespace brindlex
