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
    ApplicationOpening& applications, ProcessLaunching& processes, SpaceSwitcher& spaces,
    SessionLock& lock)
    : posting_(posting), applications_(applications), processes_(processes), spaces_(spaces),
      lock_(lock)
{
}

void MouseActionDispatcher::perform(const MouseAction::Any& action)
{
    const std::string label(logLabel(action));
    // A gesture that began before the session was locked may end at the locked one.
    if (lock_.isLocked())
        return Log::info("no action while the session is locked: " + label, logCategory::mouse);
    Log::info("dispatch action: " + label, logCategory::mouse);
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
