#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// A length of time in seconds.
using Seconds = double;

/// A point in time: seconds since 2001-01-01 00:00:00 UTC, which is also its JSON form.
struct Date {
    Seconds secondsSinceReferenceDate = 0;

    static constexpr Seconds referenceDateSinceUnixEpoch = 978'307'200;

    static constexpr Date fromUnixTime(Seconds secondsSinceUnixEpoch)
    {
        return {secondsSinceUnixEpoch - referenceDateSinceUnixEpoch};
    }
    constexpr Seconds unixTime() const
    {
        return secondsSinceReferenceDate + referenceDateSinceUnixEpoch;
    }

    constexpr bool operator==(const Date&) const = default;
    constexpr auto operator<=>(const Date&) const = default;

    friend constexpr Date operator+(Date date, Seconds interval)
    {
        return {date.secondsSinceReferenceDate + interval};
    }
    friend constexpr Date operator-(Date date, Seconds interval)
    {
        return {date.secondsSinceReferenceDate - interval};
    }
    friend constexpr Seconds operator-(Date later, Date earlier)
    {
        return later.secondsSinceReferenceDate - earlier.secondsSinceReferenceDate;
    }
};

/// The date in ISO 8601, in UTC with milliseconds cut off, not rounded:
/// "2026-11-16T02:16:25.123Z".
std::string iso8601(Date date);

/// Reads the form that `iso8601` writes, with any number of fractional digits or none. Nothing for
/// any other text.
std::optional<Date> dateFromISO8601(std::string_view text);

} // namespace brindlex
