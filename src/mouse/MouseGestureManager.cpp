#include "mouse/MouseGestureManager.h"

#include "app/Log.h"

namespace brindlex {

MouseGestureManager::MouseGestureManager(const Observable<MouseConfig>& config,
    const TapEnvironment& environment, const Abilities& abilities)
    : config_(config), abilities_(abilities), client_(environment, "MouseGesture"),
      decide_([this](Point point) { return abilities_.resizeDetector.decide(point); })
{
    enabledObserver_ = config.stream()
                           .map([](const MouseConfig& value) {
                               return eventMask(value.gesture.enabled, value.gesture.bindings);
                           })
                           .withoutRepeats()
                           .withoutFirst()
                           .subscribe([this](EventMask mask) { install(mask); });
    triggersObserver_
        = config.stream()
              .map([](const MouseConfig& value) { return eventTriggers(value.gesture); })
              .withoutRepeats()
              .withoutFirst()
              .subscribe([this](const EventTriggers& triggers) { client_.setTriggers(triggers); });
}

EventMask MouseGestureManager::currentMask() const
{
    const auto& gesture = config_.value().gesture;
    return eventMask(gesture.enabled, gesture.bindings);
}

void MouseGestureManager::install(EventMask mask)
{
    if (mask == 0) {
        tearDown();
        return;
    }
    if (client_.isSubscribed() && currentEventMask_ == mask)
        return;
    if (!client_.hasPermission()) {
        tearDown();
        client_.retryLater([this] { start(); });
        return;
    }
    if (client_.isSubscribed())
        state_ = {};
    currentEventMask_ = mask;
    client_.subscribe(
        mask,
        [this, alive = lifetime_.watch()](
            const Event& event) { return alive.expired() ? EventVerdict::pass : receive(event); },
        eventTriggers(config_.value().gesture));
}

void MouseGestureManager::tearDown()
{
    client_.unsubscribe();
    currentEventMask_ = 0;
    state_ = {};
}

EventVerdict MouseGestureManager::receive(const Event& event)
{
    const auto outcome = reduceMouseGesture(
        event, state_, config_.value().gesture, abilities_.clock.now(), decide_);
    for (const auto& effect : outcome.effects)
        carryOut(effect);
    return outcome.verdict;
}

void MouseGestureManager::carryOut(const MouseGestureEffect::Any& effect)
{
    match(
        effect,
        [](const MouseGestureEffect::LogInfo& log) { Log::info(log.message, logCategory::mouse); },
        [this](const MouseGestureEffect::Perform& perform) {
            abilities_.dispatcher.perform(perform.action);
        },
        [this](const MouseGestureEffect::ReplayClick& replay) {
            replayClick(replay.button, replay.point);
        });
}

void MouseGestureManager::replayClick(MouseButton button, Point point)
{
    for (const auto& event : replayedClick(button, point))
        if (!abilities_.posting.post(event))
            return;
}

} // namespace brindlex
