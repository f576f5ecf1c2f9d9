#include "inputmethod/TruncatedHUDLabel.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

constexpr int highestCost = 60;

struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array<Range, 8> wideRanges{{
    {0x1100, 0x11FF},
    {0x2E80, 0xA4CF},
    {0xAC00, 0xD7AF},
    {0xF900, 0xFAFF},
    {0xFE10, 0xFE19},
    {0xFE30, 0xFE6F},
    {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6},
}};

int cost(char32_t scalar)
{
    const auto holds
        = [&](const Range& range) { return range.first <= scalar && scalar <= range.last; };
    if (std::any_of(wideRanges.begin(), wideRanges.end(), holds))
        return 10;
    return scalar < 0x80 ? 3 : 6;
}

} // namespace

std::string truncatedHUDLabel(std::string_view text)
{
    const auto all = scalars(text);
    int total = 0;
    for (std::size_t taken = 0; taken < all.size(); ++taken) {
        total += cost(all[taken]);
        if (total > highestCost)
            return utf8(all.substr(0, taken)) + "...";
    }
    return utf8(all);
}

} // namespace brindlex
