#include "platform/linux/panels/OpenWindow.h"

#include "foundation/Text.h"

#include <cstdio>

namespace brindlex {
namespace {

/// No row has room for more, and laying out text costs time in proportion to its length.
constexpr std::size_t longestTitle = 256;

bool isControl(char32_t scalar) { return scalar < 0x20 || (scalar >= 0x7F && scalar <= 0x9F); }

/// The marks by which a text says in which direction what follows runs.
bool turnsText(char32_t scalar)
{
    return (scalar >= 0x202A && scalar <= 0x202E) || (scalar >= 0x2066 && scalar <= 0x2069);
}

std::string oneLine(const std::string& text)
{
    std::u32string line;
    for (const auto scalar : scalars(text)) {
        if (turnsText(scalar))
            continue;
        const bool isGap = isControl(scalar) || isWhiteSpace(scalar);
        if (!isGap)
            line += scalar;
        else if (!line.empty() && line.back() != U' ')
            line += U' ';
    }
    auto whole = trimmed(utf8(line));
    const auto parts = characters(whole);
    if (parts.size() <= longestTitle)
        return whole;
    const auto end = parts[longestTitle].data() - whole.data();
    return whole.substr(0, static_cast<std::size_t>(end)) + "…";
}

std::string numberOf(std::uint32_t window)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", window);
    return text;
}

} // namespace

WindowLabel labelOf(const OpenWindow& window)
{
    WindowLabel label{oneLine(window.title), oneLine(window.application)};
    if (label.title.empty())
        label.title = label.application.empty() ? numberOf(window.window) : label.application;
    if (label.title == label.application)
        label.application.clear();
    return label;
}

} // namespace brindlex
