#include "catalogue/DayText.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/unistr.h>

#include <memory>

namespace brindlex {
namespace {

icu::UnicodeString unicodeText(std::string_view text)
{
    return icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
}

/// Both formats are of one calendar and one time zone, so that the day stays the same.
void adoptUtc(icu::DateFormat& format)
{
    format.setLenient(false);
    format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
}

} // namespace

std::string dayText(const std::string& language, std::string_view day)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat stored(unicodeText("yyyy-MM-dd"), icu::Locale::getRoot(), status);
    const std::unique_ptr<icu::DateFormat> shown(
        icu::DateFormat::createDateInstance(icu::DateFormat::kLong, icu::Locale(language.c_str())));
    if (U_FAILURE(status) || !shown)
        return std::string(day);
    adoptUtc(stored);
    adoptUtc(*shown);
    const auto date = stored.parse(unicodeText(day), status);
    if (U_FAILURE(status))
        return std::string(day);
    icu::UnicodeString words;
    std::string text;
    return shown->format(date, words).toUTF8String(text);
}

} // namespace brindlex
