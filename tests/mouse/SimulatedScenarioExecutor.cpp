#include "mouse/SimulatedScenarioExecutor.h"

#include "foundation/FatalError.h"
#include "mouse/ScenarioWords.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr double frameRate = 60;

using Words = ScenarioExecutor::Words;

/// Takes "with command+shift" off the end.
std::uint64_t takeFlags(Words& words)
{
    const auto with = std::ranges::find(words, "with");
    if (with == words.end())
        return 0;
    const auto flags = scenarioWords::flags(*(with + 1));
    words.erase(with, words.end());
    return flags;
}

} // namespace

void SimulatedScenarioExecutor::setUp(const Words& words)
{
    if (!scenarioWords::change(initialConfig_, words))
        initialArrangement_.push_back(words);
}

void SimulatedScenarioExecutor::start()
{
    if (session_)
        return;
    session_ = std::make_unique<MouseSession>(initialConfig_);
    secondMouse_ = std::make_unique<SimulatedMouse>(session_->input);
    for (const auto& words : initialArrangement_)
        arrange(words);
    session_->clicks.start();
    session_->gestures.start();
    session_->scrolling.start();
}

std::vector<std::string> SimulatedScenarioExecutor::run(Seconds at, const Words& words)
{
    start();
    advanceTo(at);
    auto result = takeSeen();
    const bool isSecondMouse = words.at(0) == "mouse2";
    auto& mouse = isSecondMouse ? *secondMouse_ : session_->mouse;
    auto command = words;
    if (isSecondMouse)
        command.erase(command.begin());
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

void SimulatedScenarioExecutor::advanceTo(Seconds at)
{
    while (session_->displayLink.isRunning()) {
        const auto next = static_cast<double>(frames_ + 1) / frameRate;
        if (next > at)
            break;
        if (next > now_) {
            session_->mainThread.advance(next - now_);
            now_ = next;
        }
        ++frames_;
        session_->displayLink.frame(500 + next);
    }
    if (at > now_) {
        session_->mainThread.advance(at - now_);
        now_ = at;
    }
    frames_ = static_cast<long>(now_ * frameRate);
}

std::optional<EventVerdict> SimulatedScenarioExecutor::play(
    SimulatedMouse& mouse, const Words& given)
{
    auto words = given;
    const auto flags = takeFlags(words);
    const auto& what = words.at(0);
    if (what == "down" || what == "up" || what == "drag") {
        session_->keyboard.holdModifiers(flags);
        const auto number = storedValue(scenarioWords::press(words.at(1)).button);
        if (what == "drag") {
            session_->input.takeDelivered();
            return mouse.moveTo(scenarioWords::point(words.at(2)));
        }
        if (words.size() > 2)
            session_->input.cursor = scenarioWords::point(words[2]);
        session_->input.takeDelivered();
        return what == "down" ? mouse.press(number) : mouse.release(number);
    }
    if (what == "wheel" || what == "pixels") {
        session_->keyboard.holdModifiers(flags);
        session_->input.takeDelivered();
        const auto lines = [&](std::size_t word) {
            return word < words.size()
                ? static_cast<std::int64_t>(scenarioWords::number(words[word]))
                : std::int64_t{0};
        };
        return what == "wheel" ? mouse.scroll(lines(1), lines(2))
                               : mouse.scrollContinuously(lines(1), lines(2));
    }
    if (what == "set") {
        words.erase(words.begin());
        session_->edit([&](MouseConfig& config) { scenarioWords::change(config, words); });
    } else if (what != "wait") {
        arrange(words);
    }
    return {};
}

void SimulatedScenarioExecutor::arrange(const Words& words)
{
    const auto& what = words.at(0);
    if (what == "permission") {
        session_->permissions.set(words.at(1) == "given");
        session_->permissions.tell();
    } else if (what == "active") {
        session_->activation.becomeActive();
    } else if (what == "front") {
        RunningApplication application;
        application.processIdentifier = 42;
        application.bundleIdentifier = words.at(1);
        session_->applications.quit(42);
        session_->applications.bringToFront(application);
    } else if (what == "cursor") {
        const CursorImage resize{77, {8, 8}, {16, 16}, "resize"};
        session_->cursor.named[words.at(1)] = {resize};
        session_->cursor.shown = words[1] == "arrow" ? SimulatedCursor::arrow() : resize;
    } else if (what == "window") {
        session_->windows.windows = {{0, 1.0,
            Rect{scenarioWords::point(words.at(1)),
                {scenarioWords::point(words.at(2)).x, scenarioWords::point(words.at(2)).y}}}};
    } else if (what == "element") {
        session_->accessibility.element = std::make_shared<SimulatedElement>();
        session_->accessibility.element->givenRole = words.at(1);
    } else if (what == "tap") {
        session_->input.switchTapsOff(EventType::tapDisabledByTimeout);
    } else {
        fatalError("A scenario says \"" + what + "\"");
    }
}

std::vector<std::string> SimulatedScenarioExecutor::takeSeen()
{
    auto texts = scenarioWords::seen(session_->input.takeDelivered());
    for (const auto& application : std::exchange(session_->opening.opened, {}))
        texts.push_back("open " + application.string());
    for (const auto& launch : std::exchange(session_->processes.launches, {})) {
        auto text = "launch " + launch.executable.string();
        for (const auto& argument : launch.arguments)
            text += " \"" + argument + "\"";
        texts.push_back(std::move(text));
    }
    return texts;
}

} // namespace brindlex
