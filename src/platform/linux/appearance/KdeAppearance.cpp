#include "platform/linux/appearance/KdeAppearance.h"

#include "foundation/Text.h"
#include "platform/linux/appearance/FontDescription.h"
#include "platform/linux/files/KeyFileLines.h"

#include <charconv>

namespace brindlex {
namespace {

template <typename Number>
std::optional<Number> numberIn(std::string_view text, auto... base)
{
    Number number = 0;
    const auto* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number, base...);
    if (parsed.ec != std::errc{} || parsed.ptr != end)
        return {};
    return number;
}

/// "42,46,50", with or without how opaque it is, or "#2a2e32".
std::optional<std::uint32_t> colourIn(std::string_view text)
{
    if (text.starts_with('#') && text.size() == 7)
        return numberIn<std::uint32_t>(text.substr(1), 16);
    const auto parts = split(text, ',');
    if (parts.size() != 3 && parts.size() != 4)
        return {};
    std::uint32_t colour = 0;
    for (std::size_t index = 0; index < 3; ++index) {
        const auto part = numberIn<std::uint32_t>(trimmed(parts[index]));
        if (!part || *part > 255)
            return {};
        colour = colour << 8 | *part;
    }
    return colour;
}

/// By what the eye sees of red, green and blue (ITU-R BT.709).
bool isDarkColour(std::uint32_t colour)
{
    const auto part = [colour](int shift) { return static_cast<double>(colour >> shift & 0xff); };
    return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0) < 128;
}

} // namespace

StatedAppearance kdeAppearance(std::string_view text)
{
    const auto value = [&](std::string_view group, std::string_view key) {
        return keyFileValue(text, group, key).value_or("");
    };
    StatedAppearance appearance;
    if (const auto ground = colourIn(value("Colors:Window", "BackgroundNormal")))
        appearance.isDark = isDarkColour(*ground);
    appearance.accent = colourIn(value("General", "AccentColor"));
    if (!appearance.accent)
        appearance.accent = colourIn(value("Colors:Selection", "BackgroundNormal"));
    if (const auto factor = numberIn<double>(value("KDE", "AnimationDurationFactor")))
        appearance.reducesMotion = *factor == 0;
    appearance.font = qtFont(value("General", "font"));
    return appearance;
}

} // namespace brindlex
