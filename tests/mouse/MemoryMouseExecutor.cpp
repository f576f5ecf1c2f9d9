#include "mouse/MemoryMouseExecutor.h"

#include "mouse/MouseScenarioText.h"

namespace brindlex {

using MouseStep = MouseScenarioStep;

void MemoryMouseExecutor::begin(const MouseScenario& scenario)
{
    session_ = std::make_unique<Session>(scenario.preparation.config);
    session_->stage.begin(scenario.preparation);
}

std::vector<std::string> MemoryMouseExecutor::perform(const MouseScenario::Step& step)
{
    session_->stage.advanceTo(step.time);
    auto result = takeSeen();
    const auto verdict = carryOut(step.what);
    auto events = session_->input.takeDelivered();
    if (verdict) {
        result.push_back(*verdict == EventVerdict::pass ? "pass" : "swallow");
        if (*verdict == EventVerdict::pass)
            events.erase(events.begin());
    }
    for (auto& text : scenarioText(events))
        result.push_back(std::move(text));
    for (auto& text : takeSeen())
        result.push_back(std::move(text));
    return result;
}

std::optional<EventVerdict> MemoryMouseExecutor::carryOut(const MouseScenarioStep::Any& step)
{
    if (const auto input = std::get_if<MouseStep::Input>(&step))
        return play(*input);
    if (std::holds_alternative<MouseStep::SwitchTapOff>(step))
        session_->input.switchTapsOff(EventType::tapDisabledByTimeout);
    else if (const auto change = std::get_if<MouseStageChange::Any>(&step))
        session_->stage.carryOut(*change);
    return {};
}

EventVerdict MemoryMouseExecutor::play(const MouseScenarioStep::Input& input)
{
    using Kind = MouseStep::Input::Kind;
    auto& mouse = input.mouse == 2 ? session_->secondMouse : session_->mouse;
    session_->keyboard.holdModifiers(input.flags);
    if (input.location && input.kind != Kind::drag)
        session_->input.cursor = *input.location;
    session_->input.takeDelivered();
    switch (input.kind) {
    case Kind::down:
        return mouse.press(input.button);
    case Kind::up:
        return mouse.release(input.button);
    case Kind::drag:
        return mouse.moveTo(*input.location);
    case Kind::wheel:
        return mouse.scroll(input.vertical, input.horizontal);
    case Kind::pixels:
        return mouse.scrollContinuously(input.vertical, input.horizontal);
    }
    return EventVerdict::pass;
}

std::vector<std::string> MemoryMouseExecutor::takeSeen()
{
    auto texts = scenarioText(session_->input.takeDelivered());
    for (auto& text : session_->stage.takeStarted())
        texts.push_back(std::move(text));
    return texts;
}

} // namespace brindlex
