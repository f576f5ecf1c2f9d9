#include "mouse/ScenarioFiles.h"
#include "mouse/SimulatedScenarioExecutor.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class MouseScenario : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(MouseScenario, goesAsItIsWritten)
{
    const auto scenario = scenarioText(GetParam());
    SimulatedScenarioExecutor executor;

    EXPECT_EQ(replayed(scenario, executor), scenario);
}

INSTANTIATE_TEST_SUITE_P(
    InMemory, MouseScenario, testing::ValuesIn(scenarioFiles()), scenarioTestName);

} // namespace
} // namespace brindlex
