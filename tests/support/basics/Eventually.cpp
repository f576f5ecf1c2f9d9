#include "support/basics/Eventually.h"

#include "support/basics/StateReport.h"

#include <thread>

namespace brindlex {
namespace {

constexpr std::chrono::milliseconds betweenQuestions{2};

/// Asks until the condition returns `awaited` or the period is over; whether it did so.
bool askUntil(
    bool awaited, std::chrono::milliseconds period, const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + period;
    do {
        if (condition() == awaited)
            return true;
        std::this_thread::sleep_for(betweenQuestions);
    } while (std::chrono::steady_clock::now() < end);
    return condition() == awaited;
}

} // namespace

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds deadline)
{
    const bool isThere = askUntil(true, deadline, condition);
    if (!isThere)
        reportFailedWait(deadline);
    return isThere;
}

bool throughout(std::chrono::milliseconds period, const std::function<bool()>& condition)
{
    return !askUntil(false, period, condition);
}

bool staysTheSame(
    std::chrono::milliseconds period, const std::function<std::optional<long>()>& count)
{
    const auto before = count();
    if (!before)
        return false;
    std::this_thread::sleep_for(period);
    return count() == before;
}

} // namespace brindlex
