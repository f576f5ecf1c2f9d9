#include "mouse/MouseClickManager.h"

namespace brindlex {

MouseClickManager::MouseClickManager(const Observable<MouseConfig>& config,
    const TapEnvironment& environment, MouseActionDispatcher& dispatcher)
    : config_(config), dispatcher_(dispatcher),
      client_(environment,
          {.name = "MouseClick",
              .start = [this] { start(); },
              .reset = [this] { state_ = {}; },
              .receive = [this](const Event& event) { return receive(event); }},
          config.stream().map([](const MouseConfig& value) { return eventTriggers(value.click); }))
{
    enabledObserver_ = config.stream()
                           .map([](const MouseConfig& value) { return value.click.enabled; })
                           .withoutRepeats()
                           .withoutFirst()
                           .subscribe([this](bool isEnabled) {
                               if (isEnabled)
                                   start();
                               else
                                   tearDown();
                           });
}

EventVerdict MouseClickManager::receive(const Event& event)
{
    const auto outcome = reduceMouseClick(event, state_, config_.value().click);
    if (outcome.action)
        dispatcher_.perform(*outcome.action);
    return outcome.verdict;
}

} // namespace brindlex
