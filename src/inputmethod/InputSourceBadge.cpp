#include "inputmethod/InputSourceBadge.h"

#include "foundation/Text.h"

#include <algorithm>
#include <string_view>

namespace brindlex {
namespace {

constexpr std::string_view layoutPrefix = "xkb:";
constexpr std::size_t mostLetters = 3;

std::string firstCharacter(const std::string& text)
{
    std::size_t end = text.empty() ? 0 : 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xc0) == 0x80)
        ++end;
    return text.substr(0, end);
}

} // namespace

std::string inputSourceBadge(const TextInputSource& source)
{
    if (!source.id.starts_with(layoutPrefix))
        return uppercased(firstCharacter(source.localizedName));
    const auto layout = source.id.substr(layoutPrefix.size());
    return uppercased(layout.substr(0, std::min(layout.find(':'), mostLetters)));
}

} // namespace brindlex
