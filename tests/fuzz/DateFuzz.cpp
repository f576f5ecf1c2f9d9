#include "fuzz/FuzzTarget.h"

#include "foundation/Date.h"

#include <cmath>
#include <cstring>

using namespace brindlex;

namespace {

/// Milliseconds are cut off, and beside them what a number of seconds far from the year 2001 does
/// not hold.
constexpr Seconds largestCut = 0.0012;

/// Whether the form has a place for the date, and not the nearest that it has for it.
bool hasForm(Date date)
{
    constexpr Seconds earliest = -62'135'596'800;
    constexpr Seconds latest = 253'402'300'799;
    return date.unixTime() >= earliest && date.unixTime() <= latest;
}

void checkWriting(Date date)
{
    const auto form = iso8601(date);
    const auto read = dateFromISO8601(form);
    require(form.size() == std::strlen("2026-11-16T02:16:25.123Z"), "a form has its length");
    require(read.has_value(), "what is written of any number can be read");
    require(!hasForm(date) || std::abs(*read - date) < largestCut, "and is the same date");
}

} // namespace

/// The input is read as a text and, as far as it is long enough, as a number of seconds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    if (const auto date = dateFromISO8601(textOf(bytes, size)))
        checkWriting(*date);
    Date any;
    if (size < sizeof any.secondsSinceReferenceDate)
        return 0;
    std::memcpy(&any.secondsSinceReferenceDate, bytes, sizeof any.secondsSinceReferenceDate);
    checkWriting(any);
    return 0;
}
