#include "clipboard/ClipboardItemDescription.h"

#include "foundation/Text.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

/// How much of a text is read, in bytes: white space in front of it counts as well.
constexpr std::size_t farthestLook = 65'536;

/// As many bytes as a line can have; a single character may be of any number of scalars.
constexpr std::size_t largestLine = 8'192;

/// White space, and what is as little to be seen.
bool isBlank(UChar32 scalar)
{
    return isWhiteSpace(static_cast<char32_t>(scalar)) || u_isISOControl(scalar);
}

/// The scalar at the place, which becomes that of the next one.
UChar32 takeScalar(std::string_view text, std::size_t& at)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    auto next = static_cast<std::int64_t>(at);
    UChar32 scalar = 0;
    U8_NEXT_OR_FFFD(bytes, next, static_cast<std::int64_t>(text.size()), scalar);
    at = static_cast<std::size_t>(next);
    return scalar;
}

struct Beginning {
    std::string line{};
    bool goesOn = false;
};

/// The beginning of the text with one blank for all white space between two words.
Beginning beginningOf(std::string_view text)
{
    std::string line;
    bool isBetween = false;
    std::size_t at = 0;
    while (at < std::min(text.size(), farthestLook) && line.size() < largestLine) {
        const auto begin = at;
        if (isBlank(takeScalar(text, at))) {
            isBetween = !line.empty();
            continue;
        }
        if (std::exchange(isBetween, false))
            line += ' ';
        line += text.substr(begin, at - begin);
    }
    return {line, at < text.size()};
}

std::string oneLine(std::string_view text)
{
    auto [line, goesOn] = beginningOf(text);
    const auto all = characters(line);
    if (!goesOn && all.size() <= longestClipboardLine)
        return wellFormed(line);
    const auto kept = std::min(all.size(), longestClipboardLine - 1);
    const auto end = kept == all.size() ? line.size()
                                        : static_cast<std::size_t>(all[kept].data() - line.data());
    return wellFormed(std::string_view(line).substr(0, end)) + "…";
}

/// The path without slashes at its end, but for the root.
std::string_view withoutTrailingSlashes(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return path;
}

ClipboardItemDescription::Files descriptionOf(const std::vector<std::string>& paths)
{
    if (paths.empty())
        return {};
    const std::filesystem::path first(withoutTrailingSlashes(paths.front()));
    const auto name = first.has_filename() ? first.filename() : first;
    const auto folder = first.has_filename() ? first.parent_path() : std::filesystem::path();
    return {oneLine(name.string()), oneLine(folder.string()), paths.size()};
}

} // namespace

ClipboardItemDescription::Any clipboardItemDescription(const ClipboardItem& item)
{
    using Description = ClipboardItemDescription;
    switch (item.kind) {
    case ClipboardItemKind::text: {
        const std::string_view text = item.text ? std::string_view(*item.text) : "";
        return Description::Text{oneLine(text), clipboardColour(text)};
    }
    case ClipboardItemKind::image:
        return Description::Picture{};
    case ClipboardItemKind::file:
        break;
    }
    return item.fileURLStrings ? descriptionOf(*item.fileURLStrings) : Description::Files{};
}

} // namespace brindlex
