#include "mouse/SimulatedScenarioExecutor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace brindlex {
namespace {

std::vector<std::filesystem::path> scenarioFiles()
{
    std::vector<std::filesystem::path> files;
    const std::filesystem::path folder = std::filesystem::path(TESTS) / "mouse" / "scenarios";
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

std::string textOf(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

class MouseScenario : public testing::TestWithParam<std::filesystem::path> { };

TEST_P(MouseScenario, goesAsItIsWritten)
{
    const auto scenario = textOf(GetParam());
    SimulatedScenarioExecutor executor;

    EXPECT_EQ(replayed(scenario, executor), scenario);
}

/// The file's name with its words joined, as the names of tests allow nothing else.
std::string testName(const testing::TestParamInfo<std::filesystem::path>& info)
{
    auto name = info.param.stem().string();
    std::ranges::replace(name, '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(InMemory, MouseScenario, testing::ValuesIn(scenarioFiles()), testName);

} // namespace
} // namespace brindlex
