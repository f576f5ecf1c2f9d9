#include "mouse/HardwareMouseExecutor.h"
#include "support/scenarios/ScenarioFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class PlayedMouseScenario : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(PlayedMouseScenario, goesAsItIsWritten)
{
    HardwareMouseExecutor executor;

    ASSERT_NO_FATAL_FAILURE(expectGoesAsWritten(GetParam(), executor));

    EXPECT_EQ(executor.heldAtTheEnd(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(OnHardware, PlayedMouseScenario,
    testing::ValuesIn(scenarioFiles(scenarioFolder("mouse"), "hardware")), scenarioTestName);

} // namespace
} // namespace brindlex
