#include "desktop/DesktopSwitchExecutor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace brindlex {
namespace {

std::vector<std::filesystem::path> filesForTheDesktop()
{
    auto files = switchScenarioFiles(std::filesystem::path(TESTS) / "inputmethod" / "scenarios");
    std::erase_if(files, [](const auto& file) {
        const auto scenario = parseSwitchScenario(contentOf(file));
        return scenario && !scenario->players.contains("desktop");
    });
    return files;
}

class SwitchScenarios : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(SwitchScenarios, playOnADesktop)
{
    const auto written = contentOf(GetParam());
    const auto scenario = parseSwitchScenario(written);
    ASSERT_TRUE(scenario) << scenario.error();
    DesktopSwitchExecutor executor;
    EXPECT_EQ(written, playSwitchScenario(*scenario, executor)) << GetParam() << "\n"
                                                                << executor.report();
}

std::string caseName(const testing::TestParamInfo<std::filesystem::path>& file)
{
    auto name = file.param.stem().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char byte) { return !std::isalnum(byte); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, SwitchScenarios, testing::ValuesIn(filesForTheDesktop()), caseName);

} // namespace
} // namespace brindlex
