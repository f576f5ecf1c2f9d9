#include "platform/linux/preferences/PreferenceFileSync.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

using Patience = PreferenceFile::Patience;
using Finding = PreferenceFile::Finding;

/// Half of the time within which a change has to be on disk.
constexpr Seconds writeDelay = 0.03;
constexpr Seconds longestRetryDelay = 60;
/// How long an editor may take to put a new file in the place of the old one.
constexpr Seconds replacementTime = 1;

} // namespace

std::set<std::string> PreferenceFileSync::pendingKeys() const
{
    auto keys = changed_;
    keys.insert(beingWritten_.begin(), beingWritten_.end());
    return keys;
}

PreferenceFileSync::Actions PreferenceFileSync::change(const std::string& key)
{
    Actions actions;
    changed_.insert(key);
    writeSoon(actions);
    return actions;
}

PreferenceFileSync::Actions PreferenceFileSync::flush()
{
    Actions actions;
    write(actions);
    return actions;
}

PreferenceFileSync::Actions PreferenceFileSync::touch()
{
    Actions actions;
    look(Patience::waits, actions);
    return actions;
}

PreferenceFileSync::Actions PreferenceFileSync::fire(Timer timer)
{
    Actions actions;
    if (running_.erase(timer) == 0)
        return actions;
    if (timer == Timer::settle)
        look(Patience::acts, actions);
    else
        write(actions);
    return actions;
}

PreferenceFileSync::Actions PreferenceFileSync::endWrite(bool isWritten)
{
    Actions actions;
    if (!std::exchange(isWriting_, false))
        return actions;
    const bool wasLost = std::exchange(isLostBeingWritten_, false);
    if (isWritten) {
        retryDelay_ = firstRetryDelay;
        if (!changed_.empty() || isFileLost_)
            writeSoon(actions);
    } else {
        changed_.merge(beingWritten_);
        isFileLost_ |= wasLost;
        start(Timer::retry, retryDelay_, actions);
        retryDelay_ = std::min(2 * retryDelay_, longestRetryDelay);
    }
    beingWritten_.clear();
    return actions;
}

PreferenceFileSync::Actions PreferenceFileSync::endLook(Finding found)
{
    Actions actions;
    if (!std::exchange(isLooking_, false))
        return actions;
    stop(Timer::settle, actions);
    if (found == Finding::unsettled)
        start(Timer::settle, replacementTime, actions);
    if (found == Finding::setAside) {
        isFileLost_ = true;
        writeSoon(actions);
    }
    if (std::exchange(needsAnotherLook_, false))
        look(Patience::waits, actions);
    return actions;
}

void PreferenceFileSync::write(Actions& actions)
{
    stop(Timer::write, actions);
    if (isWriting_ || (changed_.empty() && !isFileLost_))
        return;
    stop(Timer::retry, actions);
    isWriting_ = true;
    isLostBeingWritten_ = std::exchange(isFileLost_, false);
    beingWritten_ = std::exchange(changed_, {});
    actions.push_back(Action::Write{beingWritten_});
}

void PreferenceFileSync::writeSoon(Actions& actions)
{
    if (!running_.contains(Timer::write))
        start(Timer::write, writeDelay, actions);
}

void PreferenceFileSync::look(Patience patience, Actions& actions)
{
    // What happens while a look is under way may be too late for it.
    if (std::exchange(isLooking_, true))
        needsAnotherLook_ = true;
    else
        actions.push_back(Action::Look{patience});
}

void PreferenceFileSync::start(Timer timer, Seconds delay, Actions& actions)
{
    running_.insert(timer);
    actions.push_back(Action::StartTimer{timer, delay});
}

void PreferenceFileSync::stop(Timer timer, Actions& actions)
{
    if (running_.erase(timer) > 0)
        actions.push_back(Action::StopTimer{timer});
}

} // namespace brindlex
