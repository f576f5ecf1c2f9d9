#include "mouse/MouseScenario.h"

#include "foundation/Text.h"
#include "mouse/MouseScenarioNames.h"
#include "mouse/MouseScenarioSettings.h"

namespace brindlex {
namespace {

using Input = MouseScenarioStep::Input;

constexpr std::array inputKinds{std::pair{"down", Input::Kind::down},
    std::pair{"up", Input::Kind::up}, std::pair{"drag", Input::Kind::drag},
    std::pair{"wheel", Input::Kind::wheel}, std::pair{"pixels", Input::Kind::pixels}};

/// "100,100"
Point takePoint(ScenarioWords& words)
{
    const auto parts = split(words.word(), ',');
    ScenarioWords x(parts.front());
    ScenarioWords y(parts.back());
    const Point point{x.number(), y.number()};
    if (parts.size() != 2 || x.problem() || y.problem())
        words.refuse("a place is written as 100,100");
    return point;
}

bool isValueNext(const ScenarioWords& words) { return !words.isAtEnd() && !words.isNext("with"); }

void takeWheel(ScenarioWords& words, Input& input)
{
    input.vertical = words.wholeNumber();
    if (isValueNext(words))
        input.horizontal = words.wholeNumber();
}

void takeButton(ScenarioWords& words, Input& input)
{
    input.button = storedValue(words.oneOf(scenarioButtons));
    if (isValueNext(words) || input.kind == Input::Kind::drag)
        input.location = takePoint(words);
}

Input takeInput(ScenarioWords& words)
{
    Input input;
    input.mouse = words.take("mouse2") ? 2 : 1;
    input.kind = words.oneOf(inputKinds);
    if (input.kind == Input::Kind::wheel || input.kind == Input::Kind::pixels)
        takeWheel(words, input);
    else
        takeButton(words, input);
    if (words.take("with"))
        input.flags = takeModifiers(words);
    return input;
}

MouseStageChange::PlaceWindow takeWindow(ScenarioWords& words)
{
    const auto origin = takePoint(words);
    const auto size = takePoint(words);
    return {Rect{origin, {size.x, size.y}}};
}

/// Nothing when the words are about something else.
std::optional<MouseStageChange::Any> takeStageChange(ScenarioWords& words)
{
    if (words.take("permission given"))
        return MouseStageChange::SetPermission{true};
    if (words.take("permission lost"))
        return MouseStageChange::SetPermission{false};
    if (words.take("active"))
        return MouseStageChange::Activate{};
    if (words.take("front"))
        return MouseStageChange::BringToFront{words.word()};
    if (words.take("cursor"))
        return MouseStageChange::ShowCursor{words.word()};
    if (words.take("window"))
        return takeWindow(words);
    if (words.take("element"))
        return MouseStageChange::PlaceElement{words.word()};
    return {};
}

MouseStageChange::Any takeSetting(ScenarioWords& words)
{
    const MouseStageChange::Set change{words};
    MouseConfig config;
    changeSetting(words, config);
    return change;
}

} // namespace

void MouseVerbs::prepare(Preparation& preparation, ScenarioWords& words)
{
    if (const auto change = takeStageChange(words))
        preparation.arrangement.push_back(*change);
    else
        changeSetting(words, preparation.config);
}

MouseVerbs::Step MouseVerbs::step(ScenarioWords& words)
{
    if (words.take("wait"))
        return MouseScenarioStep::Wait{};
    if (words.take("tap off"))
        return MouseScenarioStep::SwitchTapOff{};
    if (words.take("set"))
        return takeSetting(words);
    if (const auto change = takeStageChange(words))
        return *change;
    return takeInput(words);
}

} // namespace brindlex
