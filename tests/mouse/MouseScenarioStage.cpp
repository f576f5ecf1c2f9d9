#include "mouse/MouseScenarioStage.h"

#include "mouse/MouseScenarioSettings.h"

#include <utility>

namespace brindlex {
namespace {

constexpr double frameRate = 60;
/// The reading of the display's clock at the start.
constexpr Seconds displayTime = 500;

} // namespace

void MouseScenarioStage::begin(const MouseVerbs::Preparation& preparation)
{
    for (const auto& change : preparation.arrangement)
        carryOut(change);
    subsystem_.clicks.start();
    subsystem_.gestures.start();
    subsystem_.scrolling.start();
}

void MouseScenarioStage::advanceTo(Seconds at)
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

void MouseScenarioStage::carryOut(const MouseStageChange::Any& change)
{
    using Change = MouseStageChange;
    match(
        change, [&](const Change::Set& changed) { set(changed.setting); },
        [&](const Change::SetPermission& permission) { setPermission(permission.isGiven); },
        [&](const Change::Activate&) { subsystem_.activation.becomeActive(); },
        [&](const Change::BringToFront& front) { bringToFront(front.application); },
        [&](const Change::ShowCursor& cursor) { showCursor(cursor.name); },
        [&](const Change::PlaceWindow& window) {
            subsystem_.windows.windows = {{0, 1.0, window.frame}};
        },
        [&](const Change::PlaceElement& element) { placeElement(element.role); });
}

std::vector<std::string> MouseScenarioStage::takeStarted()
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

void MouseScenarioStage::set(ScenarioWords setting)
{
    subsystem_.edit([&](MouseConfig& config) { changeSetting(setting, config); });
}

void MouseScenarioStage::setPermission(bool isGiven)
{
    subsystem_.permissions.set(isGiven);
    subsystem_.permissions.notify();
}

void MouseScenarioStage::placeElement(const std::string& role)
{
    subsystem_.accessibility.element = std::make_shared<SimulatedElement>();
    subsystem_.accessibility.element->givenRole = role;
}

void MouseScenarioStage::bringToFront(const std::string& name)
{
    RunningApplication application;
    application.processIdentifier = ProcessIdentity{42};
    application.bundleIdentifier = name;
    subsystem_.applications.quit(ProcessIdentity{42});
    subsystem_.applications.bringToFront(application);
}

void MouseScenarioStage::showCursor(const std::string& name)
{
    const CursorImage resize{77, {8, 8}, {16, 16}, "resize"};
    subsystem_.cursor.named[name] = {resize};
    subsystem_.cursor.shown = name == "arrow" ? SimulatedCursor::arrow() : resize;
}

} // namespace brindlex
