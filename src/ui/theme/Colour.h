#pragma once

#include <cstdint>
#include <string>

namespace brindlex {

/// An opaque colour in sRGB.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    constexpr bool operator==(const Colour&) const = default;

    /// From a number as it is usually written, 0x2a66dd.
    static constexpr Colour fromHex(std::uint32_t value)
    {
        return {static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value)};
    }
};

inline constexpr Colour white = Colour::fromHex(0xffffff);

/// "#2a66dd".
std::string hexText(Colour colour);

/// The contrast of two colours by WCAG 2, from 1 to 21: text needs 4.5, shapes need 3.
double contrast(Colour one, Colour other);

/// The colour with another lightness by HSL, from 0 for black to 1 for white.
Colour withLightness(Colour colour, double lightness);

/// The lightness of a colour by HSL.
double lightnessOf(Colour colour);

} // namespace brindlex
