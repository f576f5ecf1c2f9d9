#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What stands between the parentheses of a colour, such as "255 0 0 / 50%".
struct ClipboardColourArguments {
    struct Component {
        double number = 0;
        /// Such as "%" or "deg"; empty for a mere number, "none" for what is left out.
        std::string unit{};
        bool operator==(const Component&) const = default;
    };

    /// Three of them.
    std::vector<Component> channels{};
    Component alpha{1, ""};
    /// Written with commas, of which CSS allows less.
    bool isLegacy = false;

    bool operator==(const ClipboardColourArguments&) const = default;
};

/// Reads three channels with an alpha or without: between commas, or between blanks and the alpha
/// behind a slash. The text is in lower case and has blanks for all white space; any unit will do.
std::optional<ClipboardColourArguments> clipboardColourArguments(std::string_view text);

} // namespace brindlex
