#pragma once

#include <cstdint>
#include <string>

namespace brindlex {

/// The window that the user works in.
struct ActiveWindow {
    std::uint32_t window = 0;
    std::int64_t processIdentifier = 0;
    std::string title{};

    bool operator==(const ActiveWindow&) const = default;
};

} // namespace brindlex
