#pragma once

#include <cstdint>
#include <string>

namespace brindlex {

/// What an element of an accessible tree says of its kind, with the numbers of AT-SPI's roles.
struct AccessibilityRole {
    static constexpr std::uint32_t invalid = 0;
    static constexpr std::uint32_t filler = 20;
    static constexpr std::uint32_t panel = 39;
    static constexpr std::uint32_t separator = 50;
    static constexpr std::uint32_t splitPane = 53;
    static constexpr std::uint32_t unknown = 67;

    /// A separator that is not thicker, in pixels, is one to drag.
    static constexpr double thickestSplitter = 16;

    std::uint32_t number = invalid;
    /// For roles that say nothing: what the toolkit calls the role, and the element.
    std::string roleName{};
    std::string name{};
    /// For separators: the lesser of width and height.
    double thickness = 0;
    /// Whether the element is the deepest one at the point that was asked about.
    bool isDeepest = false;

    bool operator==(const AccessibilityRole&) const = default;

    /// Whether only the names can show what the element is.
    bool needsNames() const;

    /// The role in the words of macOS. Toolkits have no common role for what is there to be
    /// dragged: Qt has a role "grip", GTK 3 the split pane where nothing lies deeper, GTK 4 an
    /// element "GtkPanedHandle", others a thin separator.
    std::string text() const;
};

} // namespace brindlex
