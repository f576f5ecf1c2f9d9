#include "mouse/PlayedScenarioExecutor.h"
#include "mouse/ScenarioFiles.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// What a file says that cannot be played on hardware, with the reason behind it.
constexpr auto leftOut = "# Not on hardware: ";

std::vector<std::filesystem::path> playableFiles()
{
    auto files = scenarioFiles();
    std::erase_if(files,
        [](const auto& file) { return scenarioText(file).find(leftOut) != std::string::npos; });
    return files;
}

class PlayedMouseScenario : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(PlayedMouseScenario, goesAsItIsWritten)
{
    const auto scenario = scenarioText(GetParam());
    PlayedScenarioExecutor executor;

    EXPECT_EQ(replayed(scenario, executor), scenario);
    EXPECT_EQ(executor.heldAtTheEnd(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(
    OnHardware, PlayedMouseScenario, testing::ValuesIn(playableFiles()), scenarioTestName);

} // namespace
} // namespace brindlex
