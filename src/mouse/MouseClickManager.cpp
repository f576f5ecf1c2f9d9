#include "mouse/MouseClickManager.h"

namespace brindlex {

MouseClickManager::MouseClickManager(const Observable<MouseConfig>& config,
    const TapEnvironment& environment, MouseActionDispatcher& dispatcher)
    : config_(config), dispatcher_(dispatcher), client_(environment, "MouseClick")
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
    triggersObserver_
        = config.stream()
              .map([](const MouseConfig& value) { return eventTriggers(value.click); })
              .withoutRepeats()
              .withoutFirst()
              .subscribe([this](const EventTriggers& triggers) { client_.setTriggers(triggers); });
}

void MouseClickManager::start()
{
    if (client_.isSubscribed())
        return;
    if (!client_.hasPermission()) {
        tearDown();
        client_.retryLater([this] { start(); });
        return;
    }
    client_.subscribe(
        mouseClickEventMask,
        [this, alive = lifetime_.watch()](
            const Event& event) { return alive.expired() ? EventVerdict::pass : receive(event); },
        eventTriggers(config_.value().click));
}

void MouseClickManager::tearDown()
{
    client_.unsubscribe();
    state_ = {};
}

EventVerdict MouseClickManager::receive(const Event& event)
{
    const auto outcome = reduceMouseClick(event, state_, config_.value().click);
    if (outcome.action)
        dispatcher_.perform(*outcome.action);
    return outcome.verdict;
}

} // namespace brindlex
