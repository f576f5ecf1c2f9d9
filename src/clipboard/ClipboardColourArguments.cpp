#include "clipboard/ClipboardColourArguments.h"

#include "foundation/Text.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace brindlex {
namespace {

using Component = ClipboardColourArguments::Component;

bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

bool isOfUnit(char byte) { return byte == '%' || (byte >= 'a' && byte <= 'z'); }

/// Whether the text begins as numbers do, with a sign or without. Those of CSS have a digit behind
/// their point.
bool beginsWithNumber(std::string_view text)
{
    const auto first = text.starts_with('-') ? text.substr(1) : text;
    const auto point = first.find('.');
    const bool isOpen
        = point != first.npos && (point + 1 == first.size() || !isDigit(first[point + 1]));
    return !isOpen && !first.empty() && (isDigit(first.front()) || first.front() == '.');
}

std::optional<Component> componentOf(std::string_view text)
{
    if (text == "none")
        return Component{0, "none"};
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    if (!beginsWithNumber(text))
        return {};
    Component component;
    const auto end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, component.number);
    if (parsed.ec != std::errc())
        return {};
    component.unit.assign(parsed.ptr, end);
    if (!std::all_of(component.unit.begin(), component.unit.end(), isOfUnit))
        return {};
    return component;
}

using Parts = std::vector<std::string>;

Parts words(std::string_view text)
{
    auto words = split(text, ' ');
    std::erase(words, "");
    return words;
}

/// The parts between blanks and behind a slash; none where these are not three and one or none.
Parts modernParts(std::string_view text)
{
    const auto slash = text.find('/');
    auto parts = words(text.substr(0, slash));
    if (parts.size() != 3)
        return {};
    if (slash != text.npos)
        parts.emplace_back(text.substr(slash + 1));
    return parts;
}

} // namespace

std::optional<ClipboardColourArguments> clipboardColourArguments(std::string_view text)
{
    ClipboardColourArguments arguments{.isLegacy = text.find(',') != text.npos};
    const auto parts = arguments.isLegacy ? split(text, ',') : modernParts(text);
    if (parts.size() != 3 && parts.size() != 4)
        return {};
    for (const auto& part : parts) {
        const auto component = componentOf(trimmed(part));
        if (!component || (arguments.isLegacy && component->unit == "none"))
            return {};
        arguments.channels.push_back(*component);
    }
    if (parts.size() == 4) {
        arguments.alpha = arguments.channels.back();
        arguments.channels.pop_back();
    }
    return arguments;
}

} // namespace brindlex
