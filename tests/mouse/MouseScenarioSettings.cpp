#include "mouse/MouseScenarioSettings.h"

#include "foundation/JsonCoding.h"
#include "foundation/Text.h"
#include "mouse/MouseScenarioNames.h"

#include <string>
#include <utility>

namespace brindlex {
namespace {

struct Press {
    MouseButton button{};
    ModifierSet modifiers{};
};

std::uint64_t modifiersIn(const std::string& text, ScenarioWords& words)
{
    std::uint64_t flags = 0;
    for (const auto& name : split(text, '+')) {
        ScenarioWords word(name);
        flags |= word.oneOf(scenarioModifiers);
        if (const auto problem = word.problem())
            words.refuse(*problem);
    }
    return flags;
}

/// "button4", with modifiers as in "command+button4".
Press takePress(ScenarioWords& words)
{
    const auto text = words.word();
    const auto plus = text.rfind('+');
    const bool hasModifiers = plus != std::string::npos;
    ScenarioWords name(hasModifiers ? text.substr(plus + 1) : text);
    Press press;
    press.button = name.oneOf(scenarioButtons);
    if (hasModifiers)
        press.modifiers = ModifierSet::fromEventFlags(modifiersIn(text.substr(0, plus), words));
    if (const auto problem = name.problem())
        words.refuse(*problem);
    return press;
}

MouseDirection takeDirection(ScenarioWords& words)
{
    const auto name = words.word();
    const auto direction = caseWithStoredValue<MouseDirection>(std::string_view(name));
    if (!direction)
        words.refuse("\"" + name + "\" is no direction");
    return direction.value_or(MouseDirection{});
}

MouseAction::Any takeKeystroke(ScenarioWords& words)
{
    const auto key = words.wholeNumber();
    const auto modifiers = words.isAtEnd() ? 0 : takeModifiers(words);
    return MouseAction::SendKeystroke{key, ModifierSet::fromEventFlags(modifiers)};
}

MouseAction::Any takeAction(ScenarioWords& words)
{
    if (words.take("key"))
        return takeKeystroke(words);
    if (words.take("shell"))
        return MouseAction::RunShellCommand{words.rest()};
    const auto name = words.word();
    const auto action = fromJson<MouseAction::Any>(Json{{name, Json::object()}});
    if (!action)
        words.refuse("\"" + name + "\" is no action");
    return action ? *action : MouseAction::Any{};
}

void bindGesture(ScenarioWords& words, MouseGestureConfig& gesture)
{
    const auto [button, modifiers] = takePress(words);
    const auto direction = takeDirection(words);
    gesture.bindings.push_back({Uuid::random(), button, modifiers, direction, takeAction(words)});
}

void bindClick(ScenarioWords& words, MouseClickConfig& click)
{
    const auto [button, modifiers] = takePress(words);
    click.bindings.push_back({Uuid::random(), button, modifiers, takeAction(words)});
}

void leaveToApplication(ScenarioWords& words, MouseScrollConfig& scroll)
{
    const auto application = words.word();
    scroll.disabledApps.push_back({application, application, {}});
}

void changeScroll(ScenarioWords& words, MouseScrollConfig& scroll)
{
    if (words.take("smooth"))
        scroll.smoothEnabled = words.isOn();
    else if (words.take("duration"))
        scroll.smoothDuration = words.number();
    else if (words.take("speed"))
        scroll.speedMultiplier = words.number();
    else if (words.take("acceleration"))
        scroll.acceleration = words.number();
    else if (words.take("invertVertical"))
        scroll.invertVertical = words.isOn();
    else if (words.take("invertHorizontal"))
        scroll.invertHorizontal = words.isOn();
    else if (words.take("leaves"))
        leaveToApplication(words, scroll);
    else
        words.refuseNext();
}

} // namespace

void changeSetting(ScenarioWords& words, MouseConfig& config)
{
    if (words.take("gesture"))
        bindGesture(words, config.gesture);
    else if (words.take("click"))
        bindClick(words, config.click);
    else if (words.take("gestures"))
        config.gesture.enabled = words.isOn();
    else if (words.take("clicks"))
        config.click.enabled = words.isOn();
    else if (words.take("threshold"))
        config.gesture.distanceThreshold = words.number();
    else if (words.take("scroll"))
        changeScroll(words, config.scroll);
    else
        words.refuseNext();
}

std::uint64_t takeModifiers(ScenarioWords& words) { return modifiersIn(words.word(), words); }

} // namespace brindlex
