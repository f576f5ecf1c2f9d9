#pragma once

#include "platform/Pasteboard.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What a pasteboard holds at one time.
struct PasteboardState {
    std::vector<std::string> types{};
    std::optional<std::string> text{};
    std::vector<std::string> filePaths{};
    /// By type.
    std::map<std::string, std::string, std::less<>> data{};

    bool operator==(const PasteboardState&) const = default;
};

/// What a pasteboard holds once the content was written to it.
PasteboardState stateOf(PasteboardContent::Any content);

} // namespace brindlex
