#include "support/scenarios/ScenarioFolder.h"

#include <algorithm>
#include <cctype>

namespace brindlex {

std::filesystem::path scenarioFolder(const std::string& subsystem)
{
    return std::filesystem::path(TESTS) / subsystem / "scenarios";
}

std::vector<std::filesystem::path> scenarioFolders()
{
    std::vector<std::filesystem::path> folders;
    for (const auto& name : namesIn(TESTS))
        if (name != "support" && is_directory(scenarioFolder(name)))
            folders.push_back(scenarioFolder(name));
    return folders;
}

std::vector<std::filesystem::path> scenarioFiles(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& name : namesIn(folder))
        if (name.ends_with(".txt"))
            files.push_back(folder / name);
    return files;
}

std::vector<std::filesystem::path> scenarioFiles(
    const std::filesystem::path& folder, std::string_view player)
{
    auto files = scenarioFiles(folder);
    std::erase_if(files, [&](const auto& path) {
        const auto file = parseScenarioFile(path.string(), contentOf(path));
        return file && !file->isPlayedBy(player);
    });
    return files;
}

std::string scenarioTestName(const testing::TestParamInfo<std::filesystem::path>& info)
{
    auto name = info.param.stem().string();
    std::ranges::replace_if(
        name, [](unsigned char byte) { return std::isalnum(byte) == 0; }, '_');
    return name;
}

} // namespace brindlex
