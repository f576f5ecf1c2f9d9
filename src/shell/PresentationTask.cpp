#include "shell/PresentationTask.h"

#include <utility>

namespace brindlex {

void PresentationTask::start(std::span<const Seconds> delays, Attempt attempt)
{
    ++generation_;
    delays_ = delays;
    attempt_ = std::make_shared<const Attempt>(std::move(attempt));
    tryAfter(0);
}

void PresentationTask::tryAfter(std::size_t index)
{
    if (index < delays_.size())
        next_ = mainThread_.after(delays_[index], [this, index] { tryNow(index); });
    else
        next_.reset();
}

void PresentationTask::tryNow(std::size_t index)
{
    const auto generation = generation_;
    const auto attempt = attempt_;
    const bool again = (*attempt)();
    if (generation != generation_ || !isPending())
        return;
    if (again)
        tryAfter(index + 1);
    else
        next_.reset();
}

} // namespace brindlex
