#pragma once

#include <filesystem>
#include <functional>

namespace brindlex {

/// Lets the user choose one of the installed applications; `chosen` is called with the path of its
/// bundle, and not at all when the user chooses none.
using ApplicationChoosing
    = std::function<void(std::function<void(const std::filesystem::path& bundle)> chosen)>;

} // namespace brindlex
