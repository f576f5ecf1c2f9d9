#include "inputmethod/UrlHost.h"

#include "foundation/Text.h"

#include <algorithm>

namespace brindlex {
namespace {

bool isAsciiLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool isAsciiDigit(char byte) { return byte >= '0' && byte <= '9'; }

bool isScheme(std::string_view text)
{
    const auto mayFollow = [](char byte) {
        return isAsciiLetter(byte) || isAsciiDigit(byte) || byte == '+' || byte == '-'
            || byte == '.';
    };
    return !text.empty() && isAsciiLetter(text.front())
        && std::all_of(text.begin(), text.end(), mayFollow);
}

/// What stands behind the scheme and its colon, or the whole text when it is a relative reference.
std::optional<std::string_view> withoutScheme(std::string_view text)
{
    const auto end = text.find_first_of(":/?#");
    if (end == std::string_view::npos || text[end] != ':')
        return text;
    if (!isScheme(text.substr(0, end)))
        return {};
    return text.substr(end + 1);
}

std::optional<std::string_view> authority(std::string_view text)
{
    const auto rest = withoutScheme(text);
    if (!rest || !rest->starts_with("//"))
        return {};
    const auto place = rest->substr(2);
    return place.substr(0, place.find_first_of("/?#"));
}

std::string_view withoutUserInfo(std::string_view authority)
{
    const auto at = authority.rfind('@');
    return at == std::string_view::npos ? authority : authority.substr(at + 1);
}

std::optional<std::string_view> withoutPort(std::string_view place)
{
    std::size_t end = 0;
    if (place.starts_with('[')) {
        const auto bracket = place.find(']');
        if (bracket == std::string_view::npos)
            return {};
        end = bracket + 1;
    } else {
        end = std::min(place.find(':'), place.size());
    }
    const auto port = place.substr(end);
    if (!port.empty()
        && (port.front() != ':' || !std::all_of(port.begin() + 1, port.end(), isAsciiDigit)))
        return {};
    return place.substr(0, end);
}

bool isAllowedInHost(char byte)
{
    const bool isBeyondAscii = static_cast<unsigned char>(byte) >= 0x80;
    constexpr std::string_view others = "-._~!$&'()*+,;=[:]";
    return isBeyondAscii || isAsciiLetter(byte) || isAsciiDigit(byte)
        || others.find(byte) != std::string_view::npos;
}

std::optional<std::string> decoded(std::string_view host)
{
    std::string text;
    text.reserve(host.size());
    for (std::size_t at = 0; at < host.size(); ++at) {
        if (host[at] == '%') {
            const auto high = at + 2 < host.size() ? hexDigitValue(host[at + 1]) : std::nullopt;
            const auto low = high ? hexDigitValue(host[at + 2]) : std::nullopt;
            if (!low)
                return {};
            text += static_cast<char>(*high << 4 | *low);
            at += 2;
        } else if (isAllowedInHost(host[at])) {
            text += host[at];
        } else {
            return {};
        }
    }
    if (!isWellFormed(text))
        return {};
    return text;
}

} // namespace

std::optional<std::string> urlHost(std::string_view text)
{
    const auto place = authority(text);
    if (!place)
        return {};
    const auto host = withoutPort(withoutUserInfo(*place));
    if (!host)
        return {};
    return decoded(*host);
}

} // namespace brindlex
