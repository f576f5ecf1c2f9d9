#include "applications/FoldedText.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace brindlex {

std::string foldedText(std::string_view text)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto* const decomposing = icu::Normalizer2::getNFKDInstance(status);
    const auto source = icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
    const auto decomposed = decomposing->normalize(source, status);
    icu::UnicodeString bare;
    for (std::int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1))
        if (const auto scalar = decomposed.char32At(at); u_charType(scalar) != U_NON_SPACING_MARK)
            bare.append(scalar);
    std::string folded;
    bare.foldCase().toUTF8String(folded);
    return folded;
}

} // namespace brindlex
