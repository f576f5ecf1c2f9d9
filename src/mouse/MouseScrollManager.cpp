#include "mouse/MouseScrollManager.h"

#include "log/Log.h"

#include <array>
#include <string>
#include <vector>

namespace brindlex {

MouseScrollManager::MouseScrollManager(const Observable<MouseConfig>& config,
    const TapEnvironment& environment, const Abilities& abilities)
    : config_(config), abilities_(abilities),
      driver_(abilities.displayLink, environment.mainThread, abilities.clock),
      smoother_(
          driver_, [this] { return config_.value().scroll.smoothDuration; },
          [this](std::uint64_t flags, ScrollDistance distance) { post(flags, distance); },
          [this] { abilities_.posting.finishScroll(); }),
      client_(environment,
          {.name = "MouseScroll",
              .start = [this] { start(); },
              .reset = [this] { reset(); },
              .receive = [this](const Event& event) { return receive(event); }},
          config.stream().map([](const MouseConfig& value) { return eventTriggers(value.scroll); }))
{
    enabledObserver_ = config.stream()
                           .map([](const MouseConfig& value) {
                               const auto& scroll = value.scroll;
                               return std::array{scroll.smoothEnabled, scroll.invertVertical,
                                   scroll.invertHorizontal};
                           })
                           .withoutRepeats()
                           .withoutFirst()
                           .subscribe([this](const std::array<bool, 3>& flags) {
                               if (flags == std::array{false, false, false})
                                   tearDown();
                               else
                                   start();
                           });
    unusualNumbersObserver_
        = config.stream()
              .map([](const MouseConfig& value) { return unusualNumbers(value.scroll); })
              .withoutRepeats()
              .subscribe([](const std::vector<std::string>& lines) {
                  for (const auto& line : lines)
                      Log::warn(line, logCategory::mouse);
              });
}

void MouseScrollManager::reset()
{
    if (smoother_.isRunning())
        abilities_.posting.finishScroll();
    smoother_.reset();
    accelerationCalculator_ = {};
}

EventVerdict MouseScrollManager::receive(const Event& event)
{
    if (!isWheelNotch(event))
        return EventVerdict::pass;
    const auto& scroll = config_.value().scroll;
    const auto distance = reduceMouseScroll(event, accelerationCalculator_, scroll,
        frontmostBundleID(), abilities_.clock.continuousTime());
    if (!distance)
        return EventVerdict::pass;
    abilities_.posting.announceScroll(event.flags, *distance);
    if (scroll.smoothEnabled) {
        smoother_.add(event.flags, *distance);
        return EventVerdict::swallow;
    }
    post(event.flags, *distance);
    if (!smoother_.isRunning())
        abilities_.posting.finishScroll();
    return EventVerdict::swallow;
}

std::optional<std::string> MouseScrollManager::frontmostBundleID() const
{
    if (config_.value().scroll.disabledApps.empty())
        return {};
    const auto application = abilities_.applications.frontmost();
    if (!application)
        return {};
    return application->bundleIdentifier;
}

void MouseScrollManager::post(std::uint64_t flags, ScrollDistance distance)
{
    abilities_.posting.post(scrollEvent(flags, distance));
}

} // namespace brindlex
