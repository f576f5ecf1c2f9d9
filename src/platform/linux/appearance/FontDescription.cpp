#include "platform/linux/appearance/FontDescription.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

/// No font has a longer name with all that can be said of it.
constexpr std::size_t longestDescription = 512;
constexpr double pointsPerPixel = 0.75;
/// From this many parts on Qt counts weights as CSS does.
constexpr std::size_t partsOfQt6 = 16;

constexpr auto weights = std::to_array<std::pair<std::string_view, int>>({
    {"thin", 100},
    {"ultralight", 200},
    {"extralight", 200},
    {"light", 300},
    {"semilight", 350},
    {"demilight", 350},
    {"book", 380},
    {"normal", 400},
    {"regular", 400},
    {"medium", 500},
    {"semibold", 600},
    {"demibold", 600},
    {"bold", 700},
    {"ultrabold", 800},
    {"extrabold", 800},
    {"heavy", 900},
    {"black", 900},
});

/// As Qt 5 counts them, and what they are.
constexpr auto weightsOfQt5 = std::to_array<std::pair<int, int>>({
    {0, 100},
    {12, 200},
    {25, 300},
    {50, 400},
    {57, 500},
    {63, 600},
    {75, 700},
    {81, 800},
    {87, 900},
});

std::optional<double> positiveNumber(std::string_view text)
{
    double value = 0;
    const auto* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, value);
    if (parsed.ec != std::errc{} || parsed.ptr != end || !std::isfinite(value) || value <= 0)
        return {};
    return value;
}

double sane(double points) { return std::clamp(points, leastFontPoints, mostFontPoints); }

/// The size that a word stands for, in points.
std::optional<double> sizeOf(std::string_view word)
{
    const bool isInPixels = word.ends_with("px");
    if (isInPixels)
        word.remove_suffix(2);
    const auto number = positiveNumber(word);
    if (!number)
        return {};
    return sane(isInPixels ? *number * pointsPerPixel : *number);
}

/// Whether the word says of a style what it is, which the font then is.
bool takeStyle(std::string_view word, DesktopFont& font)
{
    auto name = lowercased(word);
    std::erase(name, '-');
    const auto weight = std::ranges::find(weights, name, &std::pair<std::string_view, int>::first);
    const bool isSlant = name == "italic" || name == "oblique";
    if (weight != weights.end())
        font.weight = weight->second;
    font.isItalic = font.isItalic || isSlant;
    return isSlant || name == "roman" || weight != weights.end();
}

/// The words of a description, without those for variations and features at its end.
std::vector<std::string> wordsOf(std::string_view description)
{
    auto words = split(description, ' ');
    std::erase_if(words, [](const std::string& word) {
        return word.empty() || word.starts_with('@') || word.starts_with('#');
    });
    return words;
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const auto& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

std::optional<DesktopFont> unlessNone(DesktopFont font)
{
    return font == DesktopFont{} ? std::nullopt : std::optional(std::move(font));
}

int weightOfQt5(int weight)
{
    return std::ranges::min_element(weightsOfQt5, {}, [weight](const auto& known) {
        return std::abs(known.first - weight);
    })->second;
}

int qtWeight(const std::vector<std::string>& parts)
{
    const auto number = parts.size() > 4 ? positiveNumber(parts[4]) : std::nullopt;
    if (!number)
        return DesktopFont{}.weight;
    const auto weight = static_cast<int>(std::min(*number, 900.0));
    return parts.size() >= partsOfQt6 ? std::max(weight, 100) : weightOfQt5(weight);
}

} // namespace

std::optional<DesktopFont> pangoFont(std::string_view description)
{
    if (description.size() > longestDescription || !isWellFormed(description))
        return {};
    DesktopFont font;
    auto words = wordsOf(description);
    if (const auto size = words.empty() ? std::nullopt : sizeOf(words.back())) {
        font.points = *size;
        words.pop_back();
    }
    // A comma ends the families.
    while (!words.empty() && !words.back().ends_with(',') && takeStyle(words.back(), font))
        words.pop_back();
    font.family = trimmed(split(joined(words), ',').front());
    return unlessNone(std::move(font));
}

std::optional<DesktopFont> qtFont(std::string_view description)
{
    if (description.size() > longestDescription || !isWellFormed(description))
        return {};
    const auto parts = split(description, ',');
    DesktopFont font{.family = trimmed(parts[0])};
    const auto points = parts.size() > 1 ? positiveNumber(parts[1]) : std::nullopt;
    const auto pixels = parts.size() > 2 ? positiveNumber(parts[2]) : std::nullopt;
    if (!points && !pixels)
        return {};
    font.points = sane(points ? *points : *pixels * pointsPerPixel);
    font.weight = qtWeight(parts);
    font.isItalic = parts.size() > 5 && positiveNumber(parts[5]).has_value();
    return font;
}

} // namespace brindlex
