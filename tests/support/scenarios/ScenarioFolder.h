#pragma once

#include "support/basics/TemporaryFolder.h"
#include "support/scenarios/ScenarioExecutor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The folder with the scenarios of a subsystem such as "mouse".
std::filesystem::path scenarioFolder(const std::string& subsystem);

/// The folders of all subsystems that have scenarios, sorted.
std::vector<std::filesystem::path> scenarioFolders();

/// The scenarios in a folder, sorted.
std::vector<std::filesystem::path> scenarioFiles(const std::filesystem::path& folder);

/// Those that the player plays. A malformed file is among them, and fails its test.
std::vector<std::filesystem::path> scenarioFiles(
    const std::filesystem::path& folder, std::string_view player);

/// The name of the file as that of a test: for `INSTANTIATE_TEST_SUITE_P`.
std::string scenarioTestName(const testing::TestParamInfo<std::filesystem::path>& info);

/// Fails the test unless playing the file gives exactly its text.
template <ScenarioVerbs Verbs>
void expectGoesAsWritten(const std::filesystem::path& file, ScenarioExecutor<Verbs>& executor)
{
    const auto written = contentOf(file);
    const auto scenario = parseScenario<Verbs>(file.string(), written);
    ASSERT_TRUE(scenario) << scenario.error();
    EXPECT_EQ(written, play(*scenario, executor)) << file.string() << "\n" << executor.report();
}

} // namespace brindlex
