#include "mouse/MouseGestureManager.h"

#include "log/Log.h"

namespace brindlex {

MouseGestureManager::MouseGestureManager(const Observable<MouseConfig>& config,
    const TapEnvironment& environment, const Abilities& abilities)
    : config_(config), abilities_(abilities),
      client_(environment,
          {.name = "MouseGesture",
              .start = [this] { start(); },
              .reset = [this] { state_ = {}; },
              .receive = [this](const Event& event) { return receive(event); }},
          config.stream().map(
              [](const MouseConfig& value) { return eventTriggers(value.gesture); })),
      decide_([this](Point point) { return abilities_.resizeDetector.decide(point); })
{
    enabledObserver_ = config.stream()
                           .map([](const MouseConfig& value) {
                               return eventMask(value.gesture.enabled, value.gesture.bindings);
                           })
                           .withoutRepeats()
                           .withoutFirst()
                           .subscribe([this](EventMask mask) { install(mask); });
}

EventMask MouseGestureManager::currentMask() const
{
    const auto& gesture = config_.value().gesture;
    return eventMask(gesture.enabled, gesture.bindings);
}

void MouseGestureManager::install(EventMask mask)
{
    if (mask == 0)
        tearDown();
    else
        client_.subscribe(mask);
}

EventVerdict MouseGestureManager::receive(const Event& event)
{
    const auto outcome = reduceMouseGesture(event, state_, config_.value().gesture,
        abilities_.clock.now(), abilities_.scale.unitsPerPoint(), decide_);
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
