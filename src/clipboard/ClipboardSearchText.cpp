#include "clipboard/ClipboardSearchText.h"

#include "foundation/Text.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace brindlex {
namespace {

/// Whether a scalar is a character of its own whatever stands beside it, which may be anything of
/// which the same is true. All but these begin or go on with characters of several scalars, and a
/// line's end of two.
bool standsAlone(char32_t scalar)
{
    switch (u_getIntPropertyValue(static_cast<UChar32>(scalar), UCHAR_GRAPHEME_CLUSTER_BREAK)) {
    case U_GCB_OTHER:
    case U_GCB_CONTROL:
    case U_GCB_CR:
    case U_GCB_LF:
    case U_GCB_LV:
    case U_GCB_LVT:
        return true;
    default:
        return false;
    }
}

/// As all of ASCII does.
bool allStandAlone(std::string_view text)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int64_t>(text.size());
    for (std::int64_t at = 0; at < length;) {
        UChar32 scalar = 0;
        U8_NEXT(bytes, at, length, scalar);
        if (scalar >= 0x80 && !standsAlone(static_cast<char32_t>(scalar)))
            return false;
    }
    return true;
}

std::vector<std::size_t> characterBounds(std::string_view text)
{
    std::vector<std::size_t> bounds{0};
    for (const auto& character : characters(text))
        bounds.push_back(bounds.back() + character.size());
    return bounds;
}

ClipboardSearchToken tokenOf(std::u32string_view word)
{
    ClipboardSearchToken token{utf8(word)};
    for (const auto& character : characters(token.text))
        token.characters.emplace_back(character);
    return token;
}

void appendPart(std::string& text, bool& isFirst, std::string_view part)
{
    if (!isFirst)
        text += ' ';
    isFirst = false;
    text += part;
}

} // namespace

std::vector<ClipboardSearchToken> clipboardSearchTokens(
    std::string_view query, const TextFolding& folding)
{
    std::vector<ClipboardSearchToken> tokens;
    const auto text = scalars(folding.folded(query));
    for (auto at = text.begin(); at != text.end();) {
        const auto begin = std::find_if_not(at, text.end(), isWhiteSpace);
        at = std::find_if(begin, text.end(), isWhiteSpace);
        if (begin != at)
            tokens.push_back(tokenOf({&*begin, static_cast<std::size_t>(at - begin)}));
    }
    return tokens;
}

std::string searchableText(const ClipboardItem& item)
{
    std::string text;
    bool isFirst = true;
    if (item.text)
        appendPart(text, isFirst, *item.text);
    if (item.fileURLStrings) {
        std::string paths;
        bool isFirstPath = true;
        for (const auto& path : *item.fileURLStrings)
            appendPart(paths, isFirstPath, path);
        appendPart(text, isFirst, paths);
    }
    if (item.sourceBundleID)
        appendPart(text, isFirst, *item.sourceBundleID);
    return text;
}

ClipboardSearchText::ClipboardSearchText(const ClipboardItem& item, const TextFolding& folding)
    : text_(folding.folded(searchableText(item)))
{
    if (!allStandAlone(text_))
        bounds_ = characterBounds(text_);
}

bool ClipboardSearchText::passes(const ClipboardSearchToken& token) const
{
    if (!bounds_.empty())
        return text_.find(token.text) != std::string::npos || hasCharactersOf(token);
    // What contains the token has its characters in their order: they are its scalars.
    std::size_t at = 0;
    for (const auto& character : token.characters) {
        const auto found = text_.find(character, at);
        if (found == std::string::npos)
            return false;
        at = found + character.size();
    }
    return true;
}

bool ClipboardSearchText::hasCharactersOf(const ClipboardSearchToken& token) const
{
    const std::string_view text = text_;
    auto wanted = token.characters.begin();
    for (std::size_t at = 0; at + 1 < bounds_.size() && wanted != token.characters.end(); ++at)
        if (text.substr(bounds_[at], bounds_[at + 1] - bounds_[at]) == *wanted)
            ++wanted;
    return wanted == token.characters.end();
}

} // namespace brindlex
