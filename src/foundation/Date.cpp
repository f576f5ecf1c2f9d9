#include "foundation/Date.h"

#include <chrono>
#include <cmath>

namespace brindlex {
namespace {

/// Reads exactly `count` digits from the front of `text`.
std::optional<int> takeDigits(std::string_view& text, std::size_t count)
{
    if (text.size() < count)
        return {};
    int number = 0;
    for (const char digit : text.substr(0, count)) {
        if (digit < '0' || digit > '9')
            return {};
        number = number * 10 + (digit - '0');
    }
    text.remove_prefix(count);
    return number;
}

bool take(std::string_view& text, char expected)
{
    if (text.empty() || text.front() != expected)
        return false;
    text.remove_prefix(1);
    return true;
}

std::optional<double> takeFraction(std::string_view& text)
{
    if (!take(text, '.'))
        return 0.0;
    double fraction = 0;
    double unit = 0.1;
    bool hasDigits = false;
    while (const auto digit = takeDigits(text, 1)) {
        fraction += *digit * unit;
        unit /= 10;
        hasDigits = true;
    }
    if (!hasDigits)
        return {};
    return fraction;
}

/// Puts the decimal digits of a number that is not negative into `count` places of the text.
void putDigits(std::string& text, std::size_t begin, std::size_t count, int number)
{
    for (auto place = begin + count; place > begin; number /= 10)
        text[--place] = static_cast<char>('0' + number % 10);
}

/// The whole milliseconds since the beginning of 1970.
double wholeMilliseconds(Date date)
{
    // The number that is nearest to a millisecond may lie before it, the further from the reference
    // date the more: by one step for the number itself and one for what it was computed from.
    const double furthest
        = std::fmax(std::fabs(date.secondsSinceReferenceDate), std::fabs(date.unixTime()));
    const double step = std::nextafter(furthest, HUGE_VAL) - furthest;
    return std::floor(date.secondsSinceReferenceDate * 1000 + std::fmax(2 * step * 1000, 1e-4))
        + Date::referenceDateSinceUnixEpoch * 1000;
}

} // namespace

std::string iso8601(Date date)
{
    using namespace std::chrono;
    // A date outside the years 1 to 9999 has no ISO form; the nearest that has one stands for it.
    constexpr double earliest = -62'135'596'800'000.0;
    constexpr double latest = 253'402'300'799'999.0;
    const double wanted = wholeMilliseconds(date);
    const double milliseconds = wanted >= earliest ? std::fmin(wanted, latest) : earliest;
    const sys_time<std::chrono::milliseconds> moment{
        std::chrono::milliseconds{static_cast<std::int64_t>(milliseconds)}};
    const auto day = floor<days>(moment);
    const year_month_day calendar{day};
    const hh_mm_ss time{moment - day};
    std::string text = "0000-00-00T00:00:00.000Z";
    putDigits(text, 0, 4, static_cast<int>(calendar.year()));
    putDigits(text, 5, 2, static_cast<int>(static_cast<unsigned>(calendar.month())));
    putDigits(text, 8, 2, static_cast<int>(static_cast<unsigned>(calendar.day())));
    putDigits(text, 11, 2, static_cast<int>(time.hours().count()));
    putDigits(text, 14, 2, static_cast<int>(time.minutes().count()));
    putDigits(text, 17, 2, static_cast<int>(time.seconds().count()));
    putDigits(text, 20, 3, static_cast<int>(time.subseconds().count()));
    return text;
}

std::optional<Date> dateFromISO8601(std::string_view text)
{
    using namespace std::chrono;
    const auto yearNumber = takeDigits(text, 4);
    if (!yearNumber || !take(text, '-'))
        return {};
    const auto monthNumber = takeDigits(text, 2);
    if (!monthNumber || !take(text, '-'))
        return {};
    const auto dayNumber = takeDigits(text, 2);
    if (!dayNumber || !take(text, 'T'))
        return {};
    const auto hour = takeDigits(text, 2);
    if (!hour || !take(text, ':'))
        return {};
    const auto minute = takeDigits(text, 2);
    if (!minute || !take(text, ':'))
        return {};
    const auto second = takeDigits(text, 2);
    if (!second)
        return {};
    const auto fraction = takeFraction(text);
    if (!fraction || text != "Z")
        return {};
    const year_month_day calendar{year{*yearNumber}, month{static_cast<unsigned>(*monthNumber)},
        day{static_cast<unsigned>(*dayNumber)}};
    if (!calendar.ok() || *hour > 23 || *minute > 59 || *second > 59)
        return {};
    const auto dayStart = sys_days{calendar}.time_since_epoch();
    const double wholeSeconds = static_cast<double>(duration_cast<seconds>(dayStart).count())
        + *hour * 3600.0 + *minute * 60.0 + *second;
    return Date::fromUnixTime(wholeSeconds + *fraction);
}

} // namespace brindlex
