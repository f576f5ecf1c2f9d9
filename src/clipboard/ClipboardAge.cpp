#include "clipboard/ClipboardAge.h"

#include <algorithm>

namespace brindlex {

ClipboardAge clipboardAge(Date copied, Date now)
{
    using Unit = ClipboardAge::Unit;
    constexpr Seconds minute = 60;
    constexpr Seconds hour = 60 * minute;
    constexpr Seconds day = 24 * hour;
    // More than any calendar has, and a number that a count can hold.
    constexpr Seconds longest = 1e9 * day;

    const auto age = now - copied;
    if (!(age > 0))
        return {};
    const auto of = [age = std::min(age, longest)](Unit unit, Seconds length) {
        return ClipboardAge{unit, static_cast<std::int64_t>(age / length)};
    };
    if (age < minute)
        return of(Unit::seconds, 1);
    if (age < hour)
        return of(Unit::minutes, minute);
    return age < day ? of(Unit::hours, hour) : of(Unit::days, day);
}

} // namespace brindlex
