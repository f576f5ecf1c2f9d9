#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace brindlex {

struct ClipboardColour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// 255 for a solid colour.
    std::uint8_t alpha = 255;

    bool operator==(const ClipboardColour&) const = default;
};

/// The colour that a text is, with white space around it or not; nothing for all that is more or
/// less than one colour.
///
/// The forms are those of CSS (https://www.w3.org/TR/css-color-4/), in either case: "#" with three,
/// four, six or eight hexadecimal digits; "rgb", "rgba", "hsl" and "hsla" with commas, or with
/// blanks and a slash before the alpha. Channels out of their range are brought into it.
std::optional<ClipboardColour> clipboardColour(std::string_view text);

} // namespace brindlex
