#include "mouse/MouseScenarioText.h"

#include "mouse/MouseScenarioNames.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brindlex {
namespace {

std::string pointText(Point point)
{
    const auto text = [](double number) { return std::to_string(std::lround(number)); };
    return text(point.x) + "," + text(point.y);
}

std::string withFlags(std::uint64_t flags)
{
    std::string text;
    for (const auto& [name, flag] : scenarioModifiers)
        if ((flags & flag) != 0)
            text += (text.empty() ? " with " : "+") + std::string(name);
    return text;
}

std::string buttonText(const Event& event)
{
    const auto number = event.value(EventField::mouseEventButtonNumber);
    for (const auto& [name, button] : scenarioButtons)
        if (storedValue(button) == number)
            return name;
    return "button" + std::to_string(number + 1);
}

std::string describe(const Event& event)
{
    const auto value = [&](EventField field) { return std::to_string(event.value(field)); };
    if (isMouseDown(event.type) || isMouseUp(event.type))
        return (isMouseDown(event.type) ? "press " : "release ") + buttonText(event) + " "
            + pointText(event.location) + withFlags(event.flags);
    switch (event.type) {
    case EventType::keyDown:
    case EventType::keyUp:
        return (event.type == EventType::keyDown ? "press key " : "release key ")
            + value(EventField::keyboardEventKeycode) + withFlags(event.flags);
    case EventType::scrollWheel:
        return "scroll " + value(EventField::scrollWheelEventPointDeltaAxis1) + " "
            + value(EventField::scrollWheelEventPointDeltaAxis2) + withFlags(event.flags);
    case EventType::dockGesture:
        if (event.value(EventField{132}) == 1)
            return "swipe begins";
        if (event.value(EventField{132}) == 2)
            return {};
        return event.value(EventField{135}) > 0x80000000 ? "swipe ends right" : "swipe ends left";
    default:
        return {};
    }
}

/// Makes one word of a press and the release that follows it.
void foldClicks(std::vector<std::string>& texts)
{
    for (std::size_t at = 0; at + 1 < texts.size(); ++at) {
        const std::string press = "press ";
        const auto what = texts[at].starts_with(press) ? texts[at].substr(press.size()) : "";
        if (what.empty() || texts[at + 1] != "release " + what)
            continue;
        texts[at] = what.starts_with("key") ? what : "click " + what;
        texts.erase(texts.begin() + static_cast<std::ptrdiff_t>(at) + 1);
    }
}

} // namespace

std::vector<std::string> scenarioText(const std::vector<Event>& events)
{
    std::vector<std::string> texts;
    for (const auto& event : events)
        if (auto text = describe(event); !text.empty())
            texts.push_back(std::move(text));
    foldClicks(texts);
    return texts;
}

} // namespace brindlex
