#include "mouse/ScenarioWords.h"

#include "foundation/FatalError.h"
#include "foundation/JsonCoding.h"
#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace brindlex::scenarioWords {
namespace {

using Words = ScenarioExecutor::Words;

constexpr std::array modifierNames{
    std::pair{eventFlag::control, "control"},
    std::pair{eventFlag::option, "option"},
    std::pair{eventFlag::shift, "shift"},
    std::pair{eventFlag::command, "command"},
    std::pair{eventFlag::capsLock, "capslock"},
};

constexpr std::array buttonNames{
    std::pair{MouseButton::left, "left"},
    std::pair{MouseButton::right, "right"},
    std::pair{MouseButton::button3, "button3"},
    std::pair{MouseButton::button4, "button4"},
    std::pair{MouseButton::button5, "button5"},
};

[[noreturn]] void notAWord(const std::string& text)
{
    fatalError("A scenario says \"" + text + "\"");
}

/// Takes "with command+shift" off the end.
std::uint64_t takeFlags(Words& words)
{
    const auto with = std::ranges::find(words, "with");
    if (with == words.end())
        return 0;
    const auto held = flags(*(with + 1));
    words.erase(with, words.end());
    return held;
}

std::string rest(const Words& words, std::size_t from)
{
    std::string text;
    for (auto word = from; word < words.size(); ++word)
        text += (text.empty() ? "" : " ") + words[word];
    return text;
}

MouseAction::Any action(const Words& words, std::size_t from)
{
    const auto& name = words.at(from);
    if (name == "key")
        return MouseAction::SendKeystroke{static_cast<std::int64_t>(number(words.at(from + 1))),
            ModifierSet::fromEventFlags(
                from + 2 < words.size() ? flags(words[from + 2]) : std::uint64_t{0})};
    if (name == "shell")
        return MouseAction::RunShellCommand{rest(words, from + 1)};
    const auto decoded = fromJson<MouseAction::Any>(Json{{name, Json::object()}});
    if (!decoded)
        notAWord(name);
    return *decoded;
}

bool isOn(const std::string& word)
{
    if (word != "on" && word != "off")
        notAWord(word);
    return word == "on";
}

void changeScroll(MouseScrollConfig& scroll, const Words& words)
{
    const auto& what = words.at(1);
    const auto& value = words.at(2);
    if (what == "smooth")
        scroll.smoothEnabled = isOn(value);
    else if (what == "duration")
        scroll.smoothDuration = number(value);
    else if (what == "speed")
        scroll.speedMultiplier = number(value);
    else if (what == "acceleration")
        scroll.acceleration = number(value);
    else if (what == "invertVertical")
        scroll.invertVertical = isOn(value);
    else if (what == "invertHorizontal")
        scroll.invertHorizontal = isOn(value);
    else if (what == "leaves")
        scroll.disabledApps.push_back({value, value, {}});
    else
        notAWord(what);
}

std::string pointText(Point point)
{
    const auto text = [](double number) { return std::to_string(std::lround(number)); };
    return text(point.x) + "," + text(point.y);
}

std::string withFlags(std::uint64_t flags)
{
    std::string text;
    for (const auto& [flag, name] : modifierNames)
        if ((flags & flag) != 0)
            text += (text.empty() ? " with " : "+") + std::string(name);
    return text;
}

std::string buttonText(const Event& event)
{
    const auto number = event.value(EventField::mouseEventButtonNumber);
    for (const auto& [button, name] : buttonNames)
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

std::uint64_t flags(const std::string& text)
{
    std::uint64_t result = 0;
    for (const auto& word : split(text, '+')) {
        bool isKnown = word.empty() || word == "nothing";
        for (const auto& [flag, name] : modifierNames) {
            if (word != name)
                continue;
            result |= flag;
            isKnown = true;
        }
        if (!isKnown)
            notAWord(word);
    }
    return result;
}

Press press(const std::string& text)
{
    const auto plus = text.rfind('+');
    const auto name = plus == std::string::npos ? text : text.substr(plus + 1);
    const auto modifiers = plus == std::string::npos ? "" : text.substr(0, plus);
    for (const auto& [button, word] : buttonNames)
        if (name == word)
            return {button, ModifierSet::fromEventFlags(flags(modifiers))};
    notAWord(text);
}

Point point(const std::string& text)
{
    const auto parts = split(text, ',');
    if (parts.size() != 2)
        notAWord(text);
    return {number(parts[0]), number(parts[1])};
}

double number(const std::string& text)
{
    double value = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (problem != std::errc() || end != text.data() + text.size())
        notAWord(text);
    return value;
}

bool change(MouseConfig& config, const Words& words)
{
    const auto& what = words.at(0);
    if (what == "gesture") {
        const auto [button, modifiers] = press(words.at(1));
        const auto direction = caseWithStoredValue<MouseDirection>(std::string_view(words.at(2)));
        if (!direction)
            notAWord(words[2]);
        config.gesture.bindings.push_back(
            {Uuid::random(), button, modifiers, *direction, action(words, 3)});
    } else if (what == "click") {
        const auto [button, modifiers] = press(words.at(1));
        config.click.bindings.push_back({Uuid::random(), button, modifiers, action(words, 2)});
    } else if (what == "gestures") {
        config.gesture.enabled = isOn(words.at(1));
    } else if (what == "clicks") {
        config.click.enabled = isOn(words.at(1));
    } else if (what == "threshold") {
        config.gesture.distanceThreshold = number(words.at(1));
    } else if (what == "scroll") {
        changeScroll(config.scroll, words);
    } else {
        return false;
    }
    return true;
}

std::optional<Deed> deed(Words words)
{
    constexpr std::array kinds{std::pair{"down", Deed::Kind::down}, std::pair{"up", Deed::Kind::up},
        std::pair{"drag", Deed::Kind::drag}, std::pair{"wheel", Deed::Kind::wheel},
        std::pair{"pixels", Deed::Kind::pixels}};
    const auto kind
        = std::ranges::find(kinds, words.at(0), [](const auto& entry) { return entry.first; });
    if (kind == kinds.end())
        return {};
    Deed result;
    result.kind = kind->second;
    result.flags = takeFlags(words);
    if (result.kind == Deed::Kind::wheel || result.kind == Deed::Kind::pixels) {
        result.vertical = static_cast<std::int64_t>(number(words.at(1)));
        result.horizontal = words.size() > 2 ? static_cast<std::int64_t>(number(words[2])) : 0;
        return result;
    }
    result.button = storedValue(press(words.at(1)).button);
    if (words.size() > 2 || result.kind == Deed::Kind::drag)
        result.location = point(words.at(2));
    return result;
}

bool takeSecondMouse(Words& words)
{
    if (words.at(0) != "mouse2")
        return false;
    words.erase(words.begin());
    return true;
}

std::vector<std::string> seen(const std::vector<Event>& events)
{
    std::vector<std::string> texts;
    for (const auto& event : events)
        if (auto text = describe(event); !text.empty())
            texts.push_back(std::move(text));
    foldClicks(texts);
    return texts;
}

} // namespace brindlex::scenarioWords
