#include "clipboard/views/ClipboardAgeWords.h"

#include <unicode/numfmt.h>
#include <unicode/reldatefmt.h>

namespace brindlex {
namespace {

UDateRelativeUnit relativeUnit(ClipboardAge::Unit unit)
{
    switch (unit) {
    case ClipboardAge::Unit::seconds:
        return UDAT_RELATIVE_SECONDS;
    case ClipboardAge::Unit::minutes:
        return UDAT_RELATIVE_MINUTES;
    case ClipboardAge::Unit::hours:
        return UDAT_RELATIVE_HOURS;
    case ClipboardAge::Unit::days:
        break;
    }
    return UDAT_RELATIVE_DAYS;
}

} // namespace

QString ageInWords(const ClipboardAge& age, const std::string& language)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale(language.c_str());
    const icu::RelativeDateTimeFormatter words(locale,
        icu::NumberFormat::createInstance(locale, status), UDAT_STYLE_SHORT,
        UDISPCTX_CAPITALIZATION_NONE, status);
    icu::UnicodeString text;
    if (age.unit == ClipboardAge::Unit::seconds)
        words.format(UDAT_DIRECTION_PLAIN, UDAT_ABSOLUTE_NOW, text, status);
    else
        words.format(static_cast<double>(age.count), UDAT_DIRECTION_LAST, relativeUnit(age.unit),
            text, status);
    std::string utf8;
    return QString::fromStdString(text.toUTF8String(utf8));
}

} // namespace brindlex
