#include "mouse/ScenarioFiles.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace brindlex {

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

std::string scenarioText(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::string scenarioTestName(const testing::TestParamInfo<std::filesystem::path>& info)
{
    auto name = info.param.stem().string();
    std::ranges::replace(name, '-', '_');
    return name;
}

} // namespace brindlex
