#include "foundation/TextFolding.h"

#include "foundation/FatalError.h"
#include "foundation/Text.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace brindlex {
namespace {

constexpr UChar32 dotlessI = 0x131;
constexpr UChar32 dotAbove = 0x307;

bool isPlain(std::string_view text)
{
    const auto bits = std::accumulate(text.begin(), text.end(), 0,
        [](int seen, char byte) { return seen | static_cast<unsigned char>(byte); });
    return bits < 0x80;
}

bool isDiacritic(UChar32 scalar)
{
    return (U_GET_GC_MASK(scalar) & U_GC_M_MASK) != 0
        && u_hasBinaryProperty(scalar, UCHAR_DIACRITIC);
}

/// Whether the letter before the index has a dot above, among the marks that a decomposed text has
/// before it.
bool hasDotAbove(const icu::UnicodeString& decomposed, std::int32_t at)
{
    for (; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        const auto scalar = decomposed.char32At(at);
        const auto combiningClass = u_getCombiningClass(scalar);
        if (scalar == dotAbove)
            return true;
        if (combiningClass == 0 || combiningClass == 230)
            return false;
    }
    return false;
}

} // namespace

TextFolding::TextFolding(std::string_view locale)
{
    const auto language = locale.substr(0, locale.find_first_of("_-.@"));
    hasDotlessI_ = language == "tr" || language == "az";
}

std::string TextFolding::folded(std::string_view text) const
{
    const bool isPlainLetter = !hasDotlessI_ || text.find('I') == std::string_view::npos;
    if (isPlainLetter && isPlain(text))
        return lowercased(text);

    auto status = U_ZERO_ERROR;
    const auto* const decomposing = icu::Normalizer2::getNFDInstance(status);
    const auto* const composing = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status))
        fatalError("The Unicode data is missing");
    const auto decomposed = decomposing->normalize(
        icu::UnicodeString::fromUTF8(
            icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size()))),
        status);
    icu::UnicodeString bare;
    for (std::int32_t at = 0; at < decomposed.length();) {
        const auto scalar = decomposed.char32At(at);
        at = decomposed.moveIndex32(at, 1);
        if (hasDotlessI_ && scalar == 'I')
            bare.append(hasDotAbove(decomposed, at) ? UChar32{'i'} : dotlessI);
        else if (!isDiacritic(scalar))
            bare.append(scalar);
    }
    std::string folded;
    composing->normalize(bare.foldCase(), status).toUTF8String(folded);
    return folded;
}

} // namespace brindlex
