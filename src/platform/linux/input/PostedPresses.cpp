#include "platform/linux/input/PostedPresses.h"

namespace brindlex {

bool PostedPresses::pressed(Press press, bool passes)
{
    auto& waiting = waiting_[press];
    if (!waiting.empty() && waiting.back() == passes)
        return false;
    waiting.push_back(passes);
    return passes;
}

bool PostedPresses::released(Press press, bool passes)
{
    const auto waiting = waiting_.find(press);
    if (waiting == waiting_.end())
        return passes;
    const bool wasPlayed = waiting->second.back();
    waiting->second.pop_back();
    if (waiting->second.empty())
        waiting_.erase(waiting);
    return wasPlayed;
}

} // namespace brindlex
