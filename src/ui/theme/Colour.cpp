#include "ui/theme/Colour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace brindlex {
namespace {

/// The channels from 0 to 1.
std::array<double, 3> channels(Colour colour)
{
    return {colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0};
}

Colour colourOf(const std::array<double, 3>& channels)
{
    const auto byte = [](double channel) {
        return static_cast<std::uint8_t>(std::lround(std::clamp(channel, 0.0, 1.0) * 255.0));
    };
    return {byte(channels[0]), byte(channels[1]), byte(channels[2])};
}

double relativeLuminance(Colour colour)
{
    constexpr std::array weights{0.2126, 0.7152, 0.0722};
    const auto all = channels(colour);
    double luminance = 0;
    for (std::size_t index = 0; index < all.size(); ++index) {
        const auto channel = all[index];
        luminance += weights[index]
            * (channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4));
    }
    return luminance;
}

} // namespace

std::string hexText(Colour colour)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", unsigned{colour.red}, unsigned{colour.green},
        unsigned{colour.blue});
    return text;
}

double contrast(Colour one, Colour other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

double lightnessOf(Colour colour)
{
    const auto all = channels(colour);
    const auto [least, most] = std::minmax_element(all.begin(), all.end());
    return (*least + *most) / 2;
}

Colour withLightness(Colour colour, double lightness)
{
    // With hue and saturation kept, the distances from the lightness grow with the room around it.
    auto all = channels(colour);
    const double before = lightnessOf(colour);
    const double room = std::min(before, 1 - before);
    const double roomAfter = std::min(lightness, 1 - lightness);
    for (auto& channel : all)
        channel = lightness + (room > 0 ? (channel - before) * roomAfter / room : 0);
    return colourOf(all);
}

} // namespace brindlex
