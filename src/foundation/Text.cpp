#include "foundation/Text.h"

#include "foundation/FatalError.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>

namespace brindlex {
namespace {

constexpr char32_t replacement = 0xFFFD;

/// How many bytes at the front are ASCII, of which most text consists.
std::size_t plainLength(std::string_view text)
{
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t length = 0;
    for (std::uint64_t word = 0; text.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & highBits) != 0)
            break;
    }
    while (length < text.size() && static_cast<std::uint8_t>(text[length]) < 0x80)
        ++length;
    return length;
}

/// Calls `visit` with each scalar and the range of bytes that it was read from.
template <typename Visit>
void forEachScalar(std::string_view text, Visit visit)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int64_t>(text.size());
    std::int64_t at = 0;
    while (at < length) {
        const auto begin = at;
        UChar32 scalar = 0;
        U8_NEXT(bytes, at, length, scalar);
        const bool isIllFormed = scalar < 0;
        visit(isIllFormed ? replacement : static_cast<char32_t>(scalar),
            static_cast<std::size_t>(begin), static_cast<std::size_t>(at), isIllFormed);
    }
}

void append(std::string& text, char32_t scalar)
{
    char bytes[4];
    std::int32_t length = 0;
    UBool isError = false;
    U8_APPEND(bytes, length, 4, static_cast<UChar32>(scalar), isError);
    if (isError) {
        append(text, replacement);
        return;
    }
    text.append(bytes, static_cast<std::size_t>(length));
}

} // namespace

std::u32string scalars(std::string_view text)
{
    std::u32string result;
    result.reserve(text.size());
    forEachScalar(text, [&](char32_t scalar, auto, auto, auto) { result += scalar; });
    return result;
}

std::string utf8(std::u32string_view scalars)
{
    std::string text;
    text.reserve(scalars.size());
    for (const char32_t scalar : scalars)
        append(text, scalar);
    return text;
}

std::string wellFormed(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    forEachScalar(text, [&](char32_t, std::size_t begin, std::size_t end, bool isIllFormed) {
        if (isIllFormed)
            append(result, replacement);
        else
            result.append(text.substr(begin, end - begin));
    });
    return result;
}

bool isWellFormed(std::string_view text)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int64_t>(text.size());
    auto at = static_cast<std::int64_t>(plainLength(text));
    while (at < length) {
        UChar32 scalar = 0;
        U8_NEXT(bytes, at, length, scalar);
        if (scalar < 0)
            return false;
        at += static_cast<std::int64_t>(plainLength(text.substr(static_cast<std::size_t>(at))));
    }
    return true;
}

std::string trimmed(std::string_view text)
{
    auto first = std::string_view::npos;
    std::size_t last = 0;
    forEachScalar(text, [&](char32_t scalar, std::size_t begin, std::size_t end, auto) {
        if (isWhiteSpace(scalar))
            return;
        if (first == std::string_view::npos)
            first = begin;
        last = end;
    });
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, last - first));
}

std::string lowercased(std::string_view text)
{
    std::string result;
    if (plainLength(text) == text.size()) {
        const auto lower = [](char byte) {
            return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
        };
        result.resize(text.size());
        std::transform(text.begin(), text.end(), result.begin(), lower);
        return result;
    }
    const auto source = icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size()));
    icu::UnicodeString::fromUTF8(source).toLower(icu::Locale::getRoot()).toUTF8String(result);
    return result;
}

std::string uppercased(std::string_view text)
{
    std::string result;
    const auto source = icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size()));
    icu::UnicodeString::fromUTF8(source).toUpper(icu::Locale::getRoot()).toUTF8String(result);
    return result;
}

std::vector<std::string> split(std::string_view text, char separator)
{
    std::vector<std::string> pieces;
    for (;;) {
        const auto end = text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

std::vector<std::string_view> characters(std::string_view text)
{
    std::vector<std::string_view> result;
    result.reserve(text.size());
    const auto isPlain = [](char byte) { return byte >= ' ' && byte <= '~'; };
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        for (std::size_t at = 0; at < text.size(); ++at)
            result.push_back(text.substr(at, 1));
        return result;
    }
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> breaks(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    UText source = UTEXT_INITIALIZER;
    utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
    if (U_FAILURE(status))
        fatalError("The Unicode data is missing");
    breaks->setText(&source, status);
    auto begin = breaks->first();
    for (auto end = breaks->next(); end != icu::BreakIterator::DONE; end = breaks->next()) {
        result.push_back(
            text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
        begin = end;
    }
    utext_close(&source);
    return result;
}

std::optional<std::string> unlessEmpty(std::string text)
{
    if (text.empty())
        return {};
    return text;
}

std::optional<std::uint8_t> hexDigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return static_cast<std::uint8_t>(digit - '0');
    if (digit >= 'A' && digit <= 'F')
        return static_cast<std::uint8_t>(digit - 'A' + 10);
    if (digit >= 'a' && digit <= 'f')
        return static_cast<std::uint8_t>(digit - 'a' + 10);
    return {};
}

bool isWhiteSpace(char32_t scalar) { return u_isUWhiteSpace(static_cast<UChar32>(scalar)); }

bool isLetter(char32_t scalar) { return u_isUAlphabetic(static_cast<UChar32>(scalar)); }

bool isNumber(char32_t scalar)
{
    return (U_GET_GC_MASK(static_cast<UChar32>(scalar)) & U_GC_N_MASK) != 0;
}

bool isAlphanumeric(char32_t scalar)
{
    constexpr auto categories = U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK;
    return (U_GET_GC_MASK(static_cast<UChar32>(scalar)) & categories) != 0;
}

} // namespace brindlex
