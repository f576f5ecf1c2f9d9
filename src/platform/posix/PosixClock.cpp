#include "platform/posix/PosixClock.h"

#include <chrono>

namespace brindlex {
namespace {

template <typename TimePoint>
Seconds secondsSinceEpoch(TimePoint moment)
{
    return std::chrono::duration<Seconds>(moment.time_since_epoch()).count();
}

} // namespace

Date PosixClock::now() const
{
    return Date::fromUnixTime(secondsSinceEpoch(std::chrono::system_clock::now()));
}

Seconds PosixClock::continuousTime() const
{
    return secondsSinceEpoch(std::chrono::steady_clock::now());
}

} // namespace brindlex
