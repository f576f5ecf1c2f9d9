#include "mouse/SpaceSwitcher.h"

#include "log/Log.h"

#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

constexpr float lowestRate = 60;

} // namespace

SpaceSwitcher::SpaceSwitcher(
    EventPosting& posting, DisplayLink& displayLink, MainThread& mainThread, const Clock& clock)
    : posting_(posting), driver_(displayLink, mainThread, clock)
{
}

void SpaceSwitcher::start(bool right)
{
    if (inFlight_) {
        Log::info("SpaceSwitcher: re-trigger ignored, animation in flight", logCategory::mouse);
        return;
    }
    inFlight_ = true;
    directionSign_ = right ? 1.0 : -1.0;
    startTimestamp_ = 0;
    Log::info(
        right ? "SpaceSwitcher: start right" : "SpaceSwitcher: start left", logCategory::mouse);
    posting_.post({EventType::gesture, {}, {}, {}});
    postDockEvent(DockSwipePhase::began, 0);
    driver_.start([this](Seconds now) { frame(now); }, lowestRate);
}

void SpaceSwitcher::frame(Seconds now)
{
    if (startTimestamp_ == 0)
        startTimestamp_ = now;
    const auto elapsed = now - startTimestamp_;
    if (elapsed >= animationDuration) {
        postDockEvent(DockSwipePhase::ended, directionSign_ * finalAccumulation);
        finish();
        return;
    }
    postDockEvent(
        DockSwipePhase::changed, spaceSwitchProgress(elapsed / animationDuration) * directionSign_);
}

void SpaceSwitcher::finish()
{
    driver_.stop();
    startTimestamp_ = 0;
    directionSign_ = 0;
    inFlight_ = false;
    Log::info("SpaceSwitcher: finished", logCategory::mouse);
}

void SpaceSwitcher::postDockEvent(DockSwipePhase phase, double progress)
{
    if (!posting_.post(dockSwipeEvent(phase, progress)))
        Log::warn("SpaceSwitcher: failed to construct CGEvent", logCategory::mouse);
}

double spaceSwitchProgress(double share)
{
    const double x = std::clamp(share, 0.0, 1.0);
    return 1 - std::sqrt(1 - x * x);
}

} // namespace brindlex
