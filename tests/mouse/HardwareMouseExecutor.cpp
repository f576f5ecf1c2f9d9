#include "mouse/HardwareMouseExecutor.h"

#include "mouse/MouseScenarioText.h"
#include "platform/linux/x11/X11Buttons.h"
#include "support/hardware/Keycodes.h"

#include <array>
#include <cmath>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;
using Input = MouseScenarioStep::Input;

struct ModifierKey {
    std::uint64_t flag;
    std::uint8_t key;
};
constexpr std::array modifierKeys{ModifierKey{eventFlag::shift, keycode::shift},
    ModifierKey{eventFlag::control, keycode::control}, ModifierKey{eventFlag::option, keycode::alt},
    ModifierKey{eventFlag::command, keycode::super},
    ModifierKey{eventFlag::capsLock, keycode::capsLock}};

/// The highest key without a meaning of the usual layouts, which goes with modifiers whose press
/// was swallowed.
constexpr auto companyKey = "key 248 ";

/// Whether the line is about a modifier key, which goes up and down for what is posted, or about
/// the key that goes with it.
bool isOfModifierKey(const std::string& line)
{
    const bool isModifier = std::ranges::any_of(modifierKeys, [&](const ModifierKey& modifier) {
        return line.starts_with("key " + std::to_string(modifier.key) + " ");
    });
    return isModifier || line.starts_with(companyKey);
}

/// Whether the event is what the input has become.
bool comesFrom(const Input& input, const Event& event)
{
    const bool isPosted = event.value(EventField::eventSourceUserData) != 0;
    switch (input.kind) {
    case Input::Kind::down:
        return !isPosted && isMouseDown(event.type);
    case Input::Kind::up:
        return !isPosted && isMouseUp(event.type);
    case Input::Kind::drag:
        return !isPosted && isMouseDragged(event.type);
    default:
        return !isPosted && event.type == EventType::scrollWheel;
    }
}

/// A wheel turns notch by notch where a scenario has several in one: their scrolls are one.
void joinScrolls(std::vector<Event>& events)
{
    std::vector<Event> joined;
    for (const auto& event : events) {
        const bool continues = !joined.empty() && event.type == EventType::scrollWheel
            && joined.back().type == event.type && joined.back().flags == event.flags;
        if (!continues) {
            joined.push_back(event);
            continue;
        }
        for (const auto field : {EventField::scrollWheelEventPointDeltaAxis1,
                 EventField::scrollWheelEventPointDeltaAxis2})
            joined.back().fields.set(field, joined.back().value(field) + event.value(field));
    }
    events = std::move(joined);
}

} // namespace

HardwareMouseExecutor::Session::Session(const MouseConfig& config) : subsystem(input, input, config)
{
    // No acceleration: a count of the mouse is a pixel.
    const XConnection server;
    xcb_change_pointer_control(server.get(), 1, 1, 0, true, true);
    server.sync();
}

void HardwareMouseExecutor::begin(const MouseScenario& scenario)
{
    session_ = std::make_unique<Session>(scenario.preparation.config);
    session_->stage.begin(scenario.preparation);
    session_->desktop.settle();
}

Lines HardwareMouseExecutor::perform(const MouseScenario::Step& step)
{
    session_->clock.advance(step.time - session_->clock.continuousTime());
    session_->stage.advanceTo(step.time);
    auto result = takePosted(false);
    const auto append
        = [&](Lines lines) { result.insert(result.end(), lines.begin(), lines.end()); };
    if (const auto verdict = carryOut(step.what))
        result.push_back(*verdict);
    session_->desktop.settle();
    const auto input = std::get_if<Input>(&step.what);
    append(takePosted(input && input->kind == Input::Kind::wheel));
    append(session_->stage.takeStarted());
    append(takeSurprises());
    return result;
}

std::optional<std::string> HardwareMouseExecutor::carryOut(const MouseScenarioStep::Any& step)
{
    const auto input = std::get_if<Input>(&step);
    EXPECT_FALSE(std::holds_alternative<MouseScenarioStep::SwitchTapOff>(step)
        || (input && input->kind == Input::Kind::pixels))
        << "A step that only a computer in memory carries out";
    if (const auto change = std::get_if<MouseStageChange::Any>(&step))
        session_->stage.carryOut(*change);
    if (!input)
        return {};
    play(*input);
    auto verdict = verdictOf(*input);
    expect(*input, verdict);
    return verdict;
}

Lines HardwareMouseExecutor::heldAtTheEnd()
{
    holdModifiers(0);
    session_->desktop.settle();
    return session_->desktop.window.held();
}

void HardwareMouseExecutor::play(const Input& input)
{
    auto& desktop = session_->desktop;
    const auto& device = input.mouse == 1 ? desktop.mouse : desktop.secondMouse;
    holdModifiers(input.flags);
    if (input.kind == Input::Kind::drag)
        moveTo(input.mouse, *input.location);
    else if (input.location)
        desktop.window.movePointer(
            {static_cast<int>(input.location->x), static_cast<int>(input.location->y)});
    if (input.kind == Input::Kind::down)
        device.press(buttonOfNumber(input.button));
    else if (input.kind == Input::Kind::up)
        device.release(buttonOfNumber(input.button));
    else if (input.kind == Input::Kind::wheel)
        device.turnWheel(
            -static_cast<double>(input.vertical), -static_cast<double>(input.horizontal));
    desktop.settle();
}

void HardwareMouseExecutor::moveTo(int mouse, Point location)
{
    auto& desktop = session_->desktop;
    const auto before = desktop.window.pointer();
    const auto& device = mouse == 1 ? desktop.mouse : desktop.secondMouse;
    device.move(location.x - before.x, location.y - before.y);
    device.settle();
    const EventLogWindow::Position place{
        static_cast<int>(location.x), static_cast<int>(location.y)};
    EXPECT_TRUE(loopUntil([&] { return desktop.window.pointer() == place; }));
}

void HardwareMouseExecutor::holdModifiers(std::uint64_t flags)
{
    const auto& keyboard = session_->desktop.keyboard;
    for (const auto& [flag, key] : modifierKeys) {
        if ((flags & flag) == (heldFlags_ & flag))
            continue;
        if (key == keycode::capsLock)
            keyboard.stroke(key);
        else if ((flags & flag) != 0)
            keyboard.press(key);
        else
            keyboard.release(key);
    }
    heldFlags_ = flags;
    session_->desktop.settle();
}

std::string HardwareMouseExecutor::verdictOf(const Input& input)
{
    int passed = 0;
    int swallowed = 0;
    for (const auto& decision : session_->input.takeDecisions())
        if (comesFrom(input, decision.event))
            ++(decision.verdict == EventVerdict::pass ? passed : swallowed);
    if (passed != 0 && swallowed != 0)
        return "pass and swallow";
    return swallowed != 0 ? "swallow" : "pass";
}

void HardwareMouseExecutor::expect(const Input& input, const std::string& verdict)
{
    const auto decided = verdict == "pass" ? EventVerdict::pass : EventVerdict::swallow;
    if (input.kind == Input::Kind::down)
        expected_.press(input.mouse, input.button, input.flags, decided);
    else if (input.kind == Input::Kind::up)
        expected_.release(input.mouse, input.button, input.flags);
    else if (input.kind == Input::Kind::wheel && decided == EventVerdict::pass)
        expected_.turnWheel(input.vertical, input.horizontal, input.flags);
}

Lines HardwareMouseExecutor::takePosted(bool isWheel)
{
    std::vector<Event> events;
    const auto cursor = session_->desktop.window.pointer();
    for (const auto& posted : session_->input.takePosted()) {
        expected_.post(posted, heldFlags_, session_->clock.continuousTime());
        if (const auto* event = std::get_if<SyntheticEvent>(&posted))
            events.push_back(event->asPosted(
                {static_cast<double>(cursor.x), static_cast<double>(cursor.y)}, heldFlags_));
    }
    if (isWheel)
        joinScrolls(events);
    return scenarioText(events);
}

Lines HardwareMouseExecutor::takeSurprises()
{
    auto& desktop = session_->desktop;
    const auto expected = expected_.take();
    const auto arrived = [&] {
        auto lines = desktop.window.lines();
        std::erase_if(lines, isOfModifierKey);
        return lines;
    };
    loopUntil([&] { return arrived().size() >= expected.size(); });
    // What should not come would have come by now.
    desktop.settle();
    const auto lines = arrived();
    desktop.window.forget();
    if (lines == expected)
        return {};
    return {
        "arrived " + testing::PrintToString(lines) + " for " + testing::PrintToString(expected)};
}

} // namespace brindlex
