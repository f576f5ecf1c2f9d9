#include "mouse/PlayedScenarioExecutor.h"

#include "platform/linux/x11/X11Buttons.h"
#include "support/hardware/Keycodes.h"

#include <array>
#include <cmath>

namespace brindlex {
namespace {

using Words = ScenarioExecutor::Words;
using Lines = std::vector<std::string>;
using scenarioWords::Deed;

struct ModifierKey {
    std::uint64_t flag;
    std::uint8_t key;
};
constexpr std::array modifierKeys{ModifierKey{eventFlag::shift, keycode::shift},
    ModifierKey{eventFlag::control, keycode::control}, ModifierKey{eventFlag::option, keycode::alt},
    ModifierKey{eventFlag::command, keycode::super},
    ModifierKey{eventFlag::capsLock, keycode::capsLock}};

/// Whether the line is about a modifier key, which goes up and down for what is posted.
bool isOfModifierKey(const std::string& line)
{
    return std::ranges::any_of(modifierKeys, [&](const ModifierKey& modifier) {
        return line.starts_with("key " + std::to_string(modifier.key) + " ");
    });
}

bool isAnsweredBy(const Deed& deed, const Event& event)
{
    const bool isPosted = event.value(EventField::eventSourceUserData) != 0;
    switch (deed.kind) {
    case Deed::Kind::down:
        return !isPosted && isMouseDown(event.type);
    case Deed::Kind::up:
        return !isPosted && isMouseUp(event.type);
    case Deed::Kind::drag:
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

PlayedScenarioExecutor::Session::Session(const MouseConfig& config)
    : subsystem(input, input, config)
{
    // No acceleration: a count of the mouse is a pixel.
    const XConnection server;
    xcb_change_pointer_control(server.get(), 1, 1, 0, true, true);
    server.sync();
}

void PlayedScenarioExecutor::start()
{
    if (session_)
        return;
    session_ = std::make_unique<Session>(preparation_.config());
    preparation_.begin(session_->stage);
    session_->desktop.settle();
}

Lines PlayedScenarioExecutor::run(Seconds at, const Words& words)
{
    start();
    session_->clock.advance(at - session_->clock.continuousTime());
    session_->stage.advanceTo(at);
    auto result = takePosted(false);
    auto command = words;
    const int mouse = scenarioWords::takeSecondMouse(command) ? 2 : 1;
    const auto deed = scenarioWords::deed(command);
    if (deed) {
        play(mouse, *deed);
        const auto verdict = verdictOf(*deed);
        expect(mouse, *deed, verdict);
        result.push_back(verdict);
    } else {
        session_->stage.carryOut(command);
    }
    session_->desktop.settle();
    for (auto& text : takePosted(deed && deed->kind == Deed::Kind::wheel))
        result.push_back(std::move(text));
    for (auto& text : session_->stage.takeStarted())
        result.push_back(std::move(text));
    for (auto& text : takeSurprises())
        result.push_back(std::move(text));
    return result;
}

Lines PlayedScenarioExecutor::heldAtTheEnd()
{
    holdModifiers(0);
    session_->desktop.settle();
    return session_->desktop.window.held();
}

void PlayedScenarioExecutor::play(int mouse, const Deed& deed)
{
    auto& desktop = session_->desktop;
    const auto& device = mouse == 1 ? desktop.mouse : desktop.secondMouse;
    holdModifiers(deed.flags);
    if (deed.kind == Deed::Kind::drag)
        moveTo(mouse, *deed.location);
    else if (deed.location)
        desktop.window.movePointer(
            {static_cast<int>(deed.location->x), static_cast<int>(deed.location->y)});
    if (deed.kind == Deed::Kind::down)
        device.press(buttonOfNumber(deed.button));
    else if (deed.kind == Deed::Kind::up)
        device.release(buttonOfNumber(deed.button));
    else if (deed.kind == Deed::Kind::wheel)
        device.turnWheel(
            -static_cast<double>(deed.vertical), -static_cast<double>(deed.horizontal));
    desktop.settle();
}

void PlayedScenarioExecutor::moveTo(int mouse, Point location)
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

void PlayedScenarioExecutor::holdModifiers(std::uint64_t flags)
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

std::string PlayedScenarioExecutor::verdictOf(const Deed& deed)
{
    int passed = 0;
    int swallowed = 0;
    for (const auto& answer : session_->input.takeAnswers())
        if (isAnsweredBy(deed, answer.event))
            ++(answer.verdict == EventVerdict::pass ? passed : swallowed);
    if (passed != 0 && swallowed != 0)
        return "pass and swallow";
    return swallowed != 0 ? "swallow" : "pass";
}

void PlayedScenarioExecutor::expect(int mouse, const Deed& deed, const std::string& verdict)
{
    const auto answer = verdict == "pass" ? EventVerdict::pass : EventVerdict::swallow;
    if (deed.kind == Deed::Kind::down)
        expected_.press(mouse, deed.button, deed.flags, answer);
    else if (deed.kind == Deed::Kind::up)
        expected_.release(mouse, deed.button, deed.flags);
    else if (deed.kind == Deed::Kind::wheel && answer == EventVerdict::pass)
        expected_.turnWheel(deed.vertical, deed.horizontal, deed.flags);
}

Lines PlayedScenarioExecutor::takePosted(bool isWheel)
{
    std::vector<Event> events;
    const auto cursor = session_->desktop.window.pointer();
    for (const auto& posted : session_->input.takePosted()) {
        expected_.post(posted, heldFlags_, session_->clock.continuousTime());
        events.push_back(posted.asPosted(
            {static_cast<double>(cursor.x), static_cast<double>(cursor.y)}, heldFlags_));
    }
    if (isWheel)
        joinScrolls(events);
    return scenarioWords::seen(events);
}

Lines PlayedScenarioExecutor::takeSurprises()
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
