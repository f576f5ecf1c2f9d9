#include "platform/linux/pasteboard/FileUris.h"

#include "foundation/Text.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <utility>

namespace brindlex {
namespace {

constexpr std::string_view scheme = "file:";

bool isThisComputer(std::string_view host)
{
    if (host.empty() || host == "localhost")
        return true;
    std::array<char, 256> name{};
    gethostname(name.data(), name.size() - 1);
    return host == name.data();
}

/// The text with each "%" and two digits as the byte that they stand for.
std::string percentDecoded(std::string_view text)
{
    std::string decoded;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const auto high = index + 2 < text.size() ? hexDigitValue(text[index + 1]) : std::nullopt;
        const auto low = high ? hexDigitValue(text[index + 2]) : std::nullopt;
        if (text[index] == '%' && low) {
            decoded += static_cast<char>(*high << 4 | *low);
            index += 2;
        } else
            decoded += text[index];
    }
    return decoded;
}

std::string percentEncoded(std::string_view path)
{
    constexpr std::string_view plain = "/-_.~!$&'()*+,;=:@";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        const bool isPlain = byte < 0x80
            && (std::isalnum(byte) != 0 || plain.find(character) != std::string_view::npos);
        if (isPlain)
            encoded += character;
        else
            (((encoded += '%') += digits[byte >> 4]) += digits[byte & 0x0F]);
    }
    return encoded;
}

/// The path of "file:/path" and "file://host/path".
std::optional<std::string> localPath(std::string_view uri)
{
    if (lowercased(uri.substr(0, scheme.size())) != scheme)
        return {};
    uri.remove_prefix(scheme.size());
    if (uri.starts_with("//")) {
        uri.remove_prefix(2);
        const auto host = uri.substr(0, uri.find('/'));
        if (!isThisComputer(host))
            return {};
        uri.remove_prefix(host.size());
    }
    auto path = percentDecoded(uri);
    if (!path.starts_with('/') || path.find('\0') != std::string::npos)
        return {};
    return path;
}

std::string joinedUris(
    const std::vector<std::string>& paths, std::string_view before, std::string_view after)
{
    std::string list;
    for (const auto& path : paths)
        list.append(before).append("file://").append(percentEncoded(path)).append(after);
    return list;
}

} // namespace

std::vector<std::string> pathsOfUriList(std::string_view list)
{
    std::vector<std::string> paths;
    while (!list.empty()) {
        const auto line = list.substr(0, list.find_first_of("\r\n"));
        if (auto path = localPath(line))
            paths.push_back(std::move(*path));
        list.remove_prefix(std::min(line.size() + 1, list.size()));
    }
    return paths;
}

std::string uriListOf(const std::vector<std::string>& paths)
{
    return joinedUris(paths, "", "\r\n");
}

std::string copiedFilesOf(const std::vector<std::string>& paths)
{
    return "copy" + joinedUris(paths, "\n", "");
}

} // namespace brindlex
