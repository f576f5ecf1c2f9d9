#pragma once

#include <cstdint>
#include <string>

namespace brindlex {

/// A window that the user can change to.
struct OpenWindow {
    std::uint32_t window = 0;
    /// As the window says it, whatever that is.
    std::string title{};
    /// The name of its application; empty when nobody knows it.
    std::string application{};

    bool operator==(const OpenWindow&) const = default;
};

/// What a list says of a window, each on one line.
struct WindowLabel {
    std::string title{};
    /// Empty where the title says it already.
    std::string application{};

    bool operator==(const WindowLabel&) const = default;
};

/// The title and the application without what would break a line, hide it or turn around the text
/// beside it, at most 256 characters each. A window without a title has its application's name for
/// one, and one without both its number in the form "0x1400003".
WindowLabel labelOf(const OpenWindow& window);

} // namespace brindlex
