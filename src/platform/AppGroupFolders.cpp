#include "platform/AppGroupFolders.h"

namespace brindlex {

std::optional<std::filesystem::path> appGroupFolder(
    AppGroupContainer& container, const std::string& name)
{
    const auto root = container.appGroupContainerURL();
    if (!root)
        return {};
    const auto folder = *root / name;
    std::error_code problem;
    std::filesystem::create_directories(folder, problem);
    if (!std::filesystem::is_directory(folder, problem))
        return {};
    return folder;
}

void makeAppGroupFolders(AppGroupContainer& container)
{
    for (const auto* name : {"Logs", "Config", "Pending"})
        if (!appGroupFolder(container, name))
            return;
}

} // namespace brindlex
