#include "clipboard/ClipboardColour.h"

#include "clipboard/ClipboardColourArguments.h"
#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

namespace brindlex {
namespace {

/// No text of more bytes is looked at.
constexpr std::size_t longestColour = 128;

using Arguments = ClipboardColourArguments;
using Component = Arguments::Component;

/// From 0 to 1, as far as they are in range.
using Channels = std::array<double, 3>;

/// What a part of a whole is: a percentage, or a number of which the whole has so many.
std::optional<double> shareOf(const Component& component, double whole)
{
    if (component.unit == "%")
        return component.number / 100;
    if (component.unit.empty() || component.unit == "none")
        return component.number / whole;
    return {};
}

std::optional<double> degreesOf(const Component& angle)
{
    constexpr std::array<std::pair<std::string_view, double>, 6> degrees{{{"", 1}, {"none", 0},
        {"deg", 1}, {"grad", 0.9}, {"rad", 180 / std::numbers::pi}, {"turn", 360}}};
    for (const auto& [unit, length] : degrees)
        if (angle.unit == unit && std::isfinite(angle.number * length))
            return angle.number * length;
    return {};
}

std::optional<Channels> channelsOfRGB(const Arguments& arguments)
{
    Channels channels{};
    for (std::size_t index = 0; index < channels.size(); ++index) {
        const auto& component = arguments.channels[index];
        const auto share = shareOf(component, 255);
        if (!share || (arguments.isLegacy && component.unit != arguments.channels[0].unit))
            return {};
        channels[index] = *share;
    }
    return channels;
}

std::optional<Channels> channelsOfHSL(const Arguments& arguments)
{
    const auto hue = degreesOf(arguments.channels[0]);
    const auto saturation = shareOf(arguments.channels[1], 100);
    const auto lightness = shareOf(arguments.channels[2], 100);
    const bool hasNumbers = arguments.channels[1].unit != "%" || arguments.channels[2].unit != "%";
    if (!hue || !saturation || !lightness || (arguments.isLegacy && hasNumbers))
        return {};
    const double light = std::clamp(*lightness, 0.0, 1.0);
    const double reach = std::clamp(*saturation, 0.0, 1.0) * std::min(light, 1 - light);
    const double turned = std::fmod(std::fmod(*hue, 360) + 360, 360) / 30;
    const auto channel = [&](double offset) {
        const double place = std::fmod(offset + turned, 12);
        return light - reach * std::clamp(std::min(place - 3, 9 - place), -1.0, 1.0);
    };
    return Channels{channel(0), channel(8), channel(4)};
}

std::uint8_t byteOf(double share)
{
    return static_cast<std::uint8_t>(std::lround(std::clamp(share, 0.0, 1.0) * 255));
}

std::optional<ClipboardColour> colourOfFunction(std::string_view name, std::string_view inside)
{
    const auto arguments = clipboardColourArguments(inside);
    if (!arguments)
        return {};
    const bool isHSL = name == "hsl" || name == "hsla";
    if (!isHSL && name != "rgb" && name != "rgba")
        return {};
    const auto channels = isHSL ? channelsOfHSL(*arguments) : channelsOfRGB(*arguments);
    const auto alpha = shareOf(arguments->alpha, 1);
    if (!channels || !alpha)
        return {};
    return ClipboardColour{
        byteOf((*channels)[0]), byteOf((*channels)[1]), byteOf((*channels)[2]), byteOf(*alpha)};
}

std::optional<ClipboardColour> colourOfDigits(std::string_view digits)
{
    const std::size_t width = digits.size() <= 4 ? 1 : 2;
    const auto count = digits.size() / width;
    if (digits.size() % width != 0 || (count != 3 && count != 4))
        return {};
    std::array<std::uint8_t, 4> bytes{0, 0, 0, 255};
    for (std::size_t index = 0; index < count; ++index) {
        const auto high = hexDigitValue(digits[index * width]);
        const auto low = hexDigitValue(digits[index * width + width - 1]);
        if (!high || !low)
            return {};
        bytes[index] = static_cast<std::uint8_t>(*high * 16 + *low);
    }
    return ClipboardColour{bytes[0], bytes[1], bytes[2], bytes[3]};
}

/// In lower case, without white space around it and with blanks for all inside it.
std::string normalised(std::string_view text)
{
    auto normal = lowercased(trimmed(text));
    std::replace_if(
        normal.begin(), normal.end(),
        [](char byte) { return byte == '\t' || byte == '\n' || byte == '\r' || byte == '\f'; },
        ' ');
    return normal;
}

} // namespace

std::optional<ClipboardColour> clipboardColour(std::string_view text)
{
    if (text.size() > longestColour)
        return {};
    const auto normal = normalised(text);
    if (normal.starts_with('#'))
        return colourOfDigits(std::string_view(normal).substr(1));
    const auto open = normal.find('(');
    if (open == normal.npos || !normal.ends_with(')'))
        return {};
    const auto inside = std::string_view(normal).substr(open + 1, normal.size() - open - 2);
    return colourOfFunction(std::string_view(normal).substr(0, open), inside);
}

} // namespace brindlex
