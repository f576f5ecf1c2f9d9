#include "mouse/SimulatedScenarioExecutor.h"

#include "mouse/ScenarioWords.h"

namespace brindlex {

using Words = ScenarioExecutor::Words;

void SimulatedScenarioExecutor::start()
{
    if (session_)
        return;
    session_ = std::make_unique<Session>(preparation_.config());
    preparation_.begin(session_->stage);
}

std::vector<std::string> SimulatedScenarioExecutor::run(Seconds at, const Words& words)
{
    start();
    session_->stage.advanceTo(at);
    auto result = takeSeen();
    auto command = words;
    auto& mouse = scenarioWords::takeSecondMouse(command) ? session_->secondMouse : session_->mouse;
    const auto verdict = play(mouse, command);
    auto events = session_->input.takeDelivered();
    if (verdict) {
        result.push_back(*verdict == EventVerdict::pass ? "pass" : "swallow");
        if (*verdict == EventVerdict::pass)
            events.erase(events.begin());
    }
    for (auto& text : scenarioWords::seen(events))
        result.push_back(std::move(text));
    for (auto& text : takeSeen())
        result.push_back(std::move(text));
    return result;
}

std::optional<EventVerdict> SimulatedScenarioExecutor::play(
    SimulatedMouse& mouse, const Words& given)
{
    const auto deed = scenarioWords::deed(given);
    if (!deed) {
        if (given.at(0) == "tap")
            session_->input.switchTapsOff(EventType::tapDisabledByTimeout);
        else
            session_->stage.carryOut(given);
        return {};
    }
    using Kind = scenarioWords::Deed::Kind;
    session_->keyboard.holdModifiers(deed->flags);
    if (deed->location && deed->kind != Kind::drag)
        session_->input.cursor = *deed->location;
    session_->input.takeDelivered();
    switch (deed->kind) {
    case Kind::down:
        return mouse.press(deed->button);
    case Kind::up:
        return mouse.release(deed->button);
    case Kind::drag:
        return mouse.moveTo(*deed->location);
    case Kind::wheel:
        return mouse.scroll(deed->vertical, deed->horizontal);
    case Kind::pixels:
        return mouse.scrollContinuously(deed->vertical, deed->horizontal);
    }
    return {};
}

std::vector<std::string> SimulatedScenarioExecutor::takeSeen()
{
    auto texts = scenarioWords::seen(session_->input.takeDelivered());
    for (auto& text : session_->stage.takeStarted())
        texts.push_back(std::move(text));
    return texts;
}

} // namespace brindlex
