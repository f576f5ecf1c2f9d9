#include "catalogue/TimeWords.h"

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/reldatefmt.h>
#include <unicode/timezone.h>

#include <memory>

namespace brindlex {
namespace {

UDate icuTime(Date date) { return date.unixTime() * 1'000; }

/// The language's own words and forms for one place on earth.
class TimeWording {
public:
    TimeWording(const std::string& language, const std::string& timeZone)
        : locale_(language.c_str()),
          zone_(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(timeZone))),
          calendar_(icu::Calendar::createInstance(*zone_, locale_, status_)),
          words_(locale_, status_)
    {
    }

    icu::UnicodeString text(Date time, Date now)
    {
        icu::UnicodeString text;
        if (isSameDay(time, now, 0))
            return words_.combineDateAndTime(
                day(UDAT_DIRECTION_THIS), clockTime(time), text, status_);
        if (isSameDay(time, now, -1))
            return day(UDAT_DIRECTION_LAST);
        return formatted(
            icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale_), time);
    }

private:
    /// Whether the day is the one so many days after that of `other`.
    bool isSameDay(Date time, Date other, std::int32_t days)
    {
        calendar_->setTime(icuTime(other), status_);
        calendar_->add(UCAL_DATE, days, status_);
        const auto day = calendar_->get(UCAL_JULIAN_DAY, status_);
        calendar_->setTime(icuTime(time), status_);
        return calendar_->get(UCAL_JULIAN_DAY, status_) == day;
    }
    icu::UnicodeString day(UDateDirection direction)
    {
        icu::UnicodeString text;
        return words_.format(direction, UDAT_ABSOLUTE_DAY, text, status_);
    }
    icu::UnicodeString clockTime(Date time)
    {
        return formatted(
            icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, locale_), time);
    }
    /// Takes the format over.
    icu::UnicodeString formatted(icu::DateFormat* made, Date time)
    {
        const std::unique_ptr<icu::DateFormat> format(made);
        format->setTimeZone(*zone_);
        icu::UnicodeString text;
        return format->format(icuTime(time), text);
    }

    UErrorCode status_ = U_ZERO_ERROR;
    const icu::Locale locale_;
    const std::unique_ptr<icu::TimeZone> zone_;
    const std::unique_ptr<icu::Calendar> calendar_;
    icu::RelativeDateTimeFormatter words_;
};

} // namespace

std::string timeInWords(
    Date time, Date now, const std::string& language, const std::string& timeZone)
{
    std::string text;
    return TimeWording(language, timeZone).text(time, now).toUTF8String(text);
}

std::string localTimeZone()
{
    icu::UnicodeString name;
    std::string text;
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
    return zone->getID(name).toUTF8String(text);
}

} // namespace brindlex
