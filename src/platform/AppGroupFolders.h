#pragma once

#include "platform/AppGroupContainer.h"

#include <filesystem>
#include <optional>
#include <string>

namespace brindlex {

/// The folder of that name in the container, made if it is missing; nothing when it cannot be had.
std::optional<std::filesystem::path> appGroupFolder(
    AppGroupContainer& container, const std::string& name);

/// Makes "Logs", "Config" and "Pending", in that order, up to the first that cannot be had.
void makeAppGroupFolders(AppGroupContainer& container);

} // namespace brindlex
