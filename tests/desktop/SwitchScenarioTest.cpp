#include "desktop/DesktopSwitchExecutor.h"
#include "support/scenarios/ScenarioFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class PlayedSwitchScenario : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(PlayedSwitchScenario, goesAsItIsWritten)
{
    DesktopSwitchExecutor executor;
    expectGoesAsWritten(GetParam(), executor);
}

INSTANTIATE_TEST_SUITE_P(OnADesktop, PlayedSwitchScenario,
    testing::ValuesIn(scenarioFiles(scenarioFolder("inputmethod"), "desktop")), scenarioTestName);

} // namespace
} // namespace brindlex
