#include "mouse/MouseGesture.h"

#include "mouse/MouseEventTag.h"

#include <algorithm>

namespace brindlex {
namespace {

/// One event on its way through the machine.
class Step {
public:
    Step(const Event& event, MouseGestureState& state, const MouseGestureConfig& config, Date now,
        double unitsPerPoint, const std::function<MouseResizeDragDecision(Point)>& decide)
        : event_(event), state_(state), config_(config), now_(now), unitsPerPoint_(unitsPerPoint),
          decide_(decide),
          button_(mouseButtonWithNumber(event.value(EventField::mouseEventButtonNumber))),
          modifiers_(ModifierSet::fromEventFlags(event.flags))
    {
    }

    EventVerdict down()
    {
        pruneLostPresses();
        if (!button_ || !anyBinding([&](const auto& binding) { return isForPress(binding); }))
            return EventVerdict::pass;
        if (*button_ == MouseButton::left && isAboutToResize())
            return EventVerdict::pass;
        state_[*button_] = MouseGestureDragState{event_.location, 0, {}, false, now_};
        log("pending " + buttonLabel());
        return EventVerdict::swallow;
    }

    EventVerdict drag()
    {
        if (!button_ || !state_[*button_])
            return EventVerdict::pass;
        auto& press = *state_[*button_];
        if (now_ - press.downTime > pendingTimeout) {
            state_[*button_].reset();
            log("pending timed out during drag " + buttonLabel());
            return EventVerdict::pass;
        }
        const bool wasLocked = press.lockedDirection.has_value();
        press.update(event_.location, config_.distanceThreshold * unitsPerPoint_);
        if (!wasLocked && press.lockedDirection)
            log("locked " + label(*press.lockedDirection));
        dispatchOnLock(press);
        return EventVerdict::swallow;
    }

    EventVerdict up()
    {
        if (!button_)
            return EventVerdict::pass;
        const auto press = std::exchange(state_[*button_], std::nullopt);
        if (!press) {
            if (anyBinding([&](const auto& binding) { return binding.button == *button_; }))
                log("up without pending " + buttonLabel());
            return EventVerdict::pass;
        }
        if (now_ - press->downTime > pendingTimeout) {
            log("pending timed out before up " + buttonLabel());
            return EventVerdict::pass;
        }
        if (!press->hasDispatched)
            settle(*press);
        return EventVerdict::swallow;
    }

    std::vector<MouseGestureEffect::Any> takeEffects() { return std::move(effects_); }

private:
    void pruneLostPresses()
    {
        for (const auto button : allCases<MouseButton>()) {
            auto& press = state_[button];
            if (!press || !(now_ - press->downTime >= pendingTimeout))
                continue;
            press.reset();
            log("pending timed out before next down " + std::string(logLabel(button)));
        }
    }

    bool isAboutToResize()
    {
        const auto decision = decide_(event_.location);
        log("left down decision " + decision.description());
        if (decision.shouldBypass)
            log("bypass left gesture for resize cursor/window edge");
        return decision.shouldBypass;
    }

    void dispatchOnLock(MouseGestureDragState& press)
    {
        if (press.hasDispatched || !press.lockedDirection)
            return;
        press.hasDispatched = true;
        const auto direction = *press.lockedDirection;
        const auto* binding = bindingFor(direction);
        if (!binding) {
            log("no binding for " + label(direction));
            return;
        }
        log("dispatched on lock " + label(direction));
        effects_.push_back(MouseGestureEffect::Perform{binding->action});
    }

    /// A press that ends without having been resolved.
    void settle(const MouseGestureDragState& press)
    {
        if (press.lockedDirection) {
            if (const auto* binding = bindingFor(*press.lockedDirection))
                effects_.push_back(MouseGestureEffect::Perform{binding->action});
            else
                log("no binding for " + label(*press.lockedDirection));
        } else if (*button_ == MouseButton::right
            && press.maxDisplacement > rightClickReplayLimit * unitsPerPoint_) {
            log("suppress click replay " + buttonLabel());
        } else {
            effects_.push_back(MouseGestureEffect::ReplayClick{*button_, press.downPoint});
        }
    }

    template <typename Predicate>
    bool anyBinding(Predicate predicate) const
    {
        return std::ranges::any_of(config_.bindings, predicate);
    }

    bool isForPress(const MouseGestureBinding& binding) const
    {
        return binding.button == *button_ && binding.modifiers == modifiers_;
    }

    const MouseGestureBinding* bindingFor(MouseDirection direction) const
    {
        for (const auto& binding : config_.bindings)
            if (isForPress(binding) && binding.direction == direction)
                return &binding;
        return nullptr;
    }

    std::string buttonLabel() const { return std::string(logLabel(*button_)); }
    std::string label(MouseDirection direction) const
    {
        return buttonLabel() + " " + std::string(logLabel(direction));
    }

    void log(const std::string& message)
    {
        effects_.push_back(MouseGestureEffect::LogInfo{"MouseGesture: " + message});
    }

    const Event& event_;
    MouseGestureState& state_;
    const MouseGestureConfig& config_;
    Date now_;
    double unitsPerPoint_;
    const std::function<MouseResizeDragDecision(Point)>& decide_;
    std::optional<MouseButton> button_;
    ModifierSet modifiers_;
    std::vector<MouseGestureEffect::Any> effects_;
};

} // namespace

MouseGestureOutcome reduceMouseGesture(const Event& event, MouseGestureState& state,
    const MouseGestureConfig& config, Date now, double unitsPerPoint,
    const std::function<MouseResizeDragDecision(Point)>& decide)
{
    if (event.value(EventField::eventSourceUserData) == mouseEventTag::replay)
        return {};
    Step step(event, state, config, now, unitsPerPoint, decide);
    auto verdict = EventVerdict::pass;
    if (isMouseDown(event.type))
        verdict = step.down();
    else if (isMouseUp(event.type))
        verdict = step.up();
    else if (isMouseDragged(event.type))
        verdict = step.drag();
    return {verdict, step.takeEffects()};
}

EventMask eventMask(bool enabled, const std::vector<MouseGestureBinding>& bindings)
{
    if (!enabled)
        return 0;
    EventMask mask = 0;
    for (const auto& binding : bindings)
        mask |= mouseButtonMaskOf(storedValue(binding.button));
    return mask;
}

EventTriggers eventTriggers(const MouseGestureConfig& config)
{
    EventTriggers triggers;
    for (const auto& binding : config.bindings) {
        const EventTriggers::Button press{
            storedValue(binding.button), binding.modifiers.eventFlags()};
        if (std::ranges::find(triggers.buttons, press) == triggers.buttons.end())
            triggers.buttons.push_back(press);
    }
    return triggers;
}

std::array<SyntheticEvent, 2> replayedClick(MouseButton button, Point point)
{
    const auto number = storedValue(button);
    const EventFields fields{{EventField::mouseEventButtonNumber, number},
        {EventField::eventSourceUserData, mouseEventTag::replay}};
    return {SyntheticEvent{mouseDownType(number), point, {}, fields},
        SyntheticEvent{mouseUpType(number), point, {}, fields}};
}

} // namespace brindlex
