#include "platform/linux/accessibility/TitleMatch.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

using namespace std::string_view_literals;

/// A hyphen, an en dash and an em dash between spaces: what stands between a page and its browser.
constexpr std::array separators{" - "sv, " – "sv, " — "sv};

std::string_view withoutLastPart(std::string_view title)
{
    std::size_t end = 0;
    for (const auto separator : separators)
        if (const auto found = title.rfind(separator); found != title.npos)
            end = std::max(end, found);
    return end == 0 ? title : title.substr(0, end);
}

} // namespace

TitleMatch titleMatch(std::string_view windowTitle, std::string_view accessibleName)
{
    if (windowTitle == accessibleName)
        return TitleMatch::same;
    const auto page = withoutLastPart(windowTitle);
    if (page.empty() || !accessibleName.starts_with(page))
        return TitleMatch::none;
    const auto rest = accessibleName.substr(page.size());
    const bool isWholePart = rest.empty() || std::ranges::any_of(separators, [&](auto separator) {
        return rest.starts_with(separator);
    });
    return isWholePart ? TitleMatch::similar : TitleMatch::none;
}

} // namespace brindlex
