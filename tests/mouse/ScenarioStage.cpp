#include "mouse/ScenarioStage.h"

#include "foundation/FatalError.h"
#include "mouse/ScenarioWords.h"

#include <utility>

namespace brindlex {
namespace {

constexpr double frameRate = 60;
/// The reading of the display's clock at the start.
constexpr Seconds displayTime = 500;

} // namespace

void ScenarioStage::start()
{
    subsystem_.clicks.start();
    subsystem_.gestures.start();
    subsystem_.scrolling.start();
}

void ScenarioStage::advanceTo(Seconds at)
{
    while (subsystem_.displayLink.isRunning()) {
        const auto next = static_cast<double>(frames_ + 1) / frameRate;
        if (next > at)
            break;
        if (next > now_) {
            subsystem_.mainThread.advance(next - now_);
            now_ = next;
        }
        ++frames_;
        subsystem_.displayLink.frame(displayTime + next);
    }
    if (at > now_) {
        subsystem_.mainThread.advance(at - now_);
        now_ = at;
    }
    frames_ = static_cast<long>(now_ * frameRate);
}

void ScenarioStage::carryOut(const ScenarioExecutor::Words& words)
{
    const auto& what = words.at(0);
    if (what == "wait")
        return;
    if (what == "set") {
        const ScenarioExecutor::Words setting(words.begin() + 1, words.end());
        subsystem_.edit([&](MouseConfig& config) { scenarioWords::change(config, setting); });
    } else if (what == "permission") {
        subsystem_.permissions.set(words.at(1) == "given");
        subsystem_.permissions.tell();
    } else if (what == "active") {
        subsystem_.activation.becomeActive();
    } else if (what == "front") {
        bringToFront(words.at(1));
    } else if (what == "cursor") {
        showCursor(words.at(1));
    } else if (what == "window") {
        const auto size = scenarioWords::point(words.at(2));
        subsystem_.windows.windows
            = {{0, 1.0, Rect{scenarioWords::point(words.at(1)), {size.x, size.y}}}};
    } else if (what == "element") {
        subsystem_.accessibility.element = std::make_shared<SimulatedElement>();
        subsystem_.accessibility.element->givenRole = words.at(1);
    } else {
        fatalError("A scenario says \"" + what + "\"");
    }
}

std::vector<std::string> ScenarioStage::takeStarted()
{
    std::vector<std::string> texts;
    for (const auto& application : std::exchange(subsystem_.opening.opened, {}))
        texts.push_back("open " + application.string());
    for (const auto& launch : std::exchange(subsystem_.processes.launches, {})) {
        auto text = "launch " + launch.executable.string();
        for (const auto& argument : launch.arguments)
            text += " \"" + argument + "\"";
        texts.push_back(std::move(text));
    }
    return texts;
}

void ScenarioStage::bringToFront(const std::string& name)
{
    RunningApplication application;
    application.processIdentifier = ProcessIdentity{42};
    application.bundleIdentifier = name;
    subsystem_.applications.quit(ProcessIdentity{42});
    subsystem_.applications.bringToFront(application);
}

void ScenarioStage::showCursor(const std::string& name)
{
    const CursorImage resize{77, {8, 8}, {16, 16}, "resize"};
    subsystem_.cursor.named[name] = {resize};
    subsystem_.cursor.shown = name == "arrow" ? SimulatedCursor::arrow() : resize;
}

} // namespace brindlex
