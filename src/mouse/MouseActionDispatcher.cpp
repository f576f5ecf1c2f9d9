#include "mouse/MouseActionDispatcher.h"

#include "log/Log.h"
#include "mouse/MouseActionEffect.h"
#include "mouse/SpaceSwitcher.h"

#include <string>

namespace brindlex {
namespace {

SyntheticEvent keyEvent(EventType type, const MouseActionEffect::PostKeystroke& keystroke)
{
    return {type, {}, keystroke.flags, {{EventField::keyboardEventKeycode, keystroke.keyCode}}};
}

} // namespace

MouseActionDispatcher::MouseActionDispatcher(EventPosting& posting,
    ApplicationOpening& applications, ProcessLaunching& processes, SpaceSwitcher& spaces)
    : posting_(posting), applications_(applications), processes_(processes), spaces_(spaces)
{
}

void MouseActionDispatcher::perform(const MouseAction::Any& action)
{
    Log::info("dispatch action: " + std::string(logLabel(action)), logCategory::mouse);
    match(
        effectOf(action),
        [&](const MouseActionEffect::OpenApplication& effect) { applications_.open(effect.path); },
        [&](const MouseActionEffect::PostKeystroke& effect) {
            posting_.post(keyEvent(EventType::keyDown, effect));
            posting_.post(keyEvent(EventType::keyUp, effect));
        },
        [&](const MouseActionEffect::SwitchSpace& effect) { spaces_.start(effect.right); },
        [&](const MouseActionEffect::LaunchProcess& effect) {
            processes_.launch(effect.executable, effect.arguments, [](const std::string& reason) {
                Log::error("runShell failed: " + reason, logCategory::mouse);
            });
        });
}

} // namespace brindlex
