#include "mouse/MouseActionEffect.h"

#include "foundation/FatalError.h"
#include "platform/Event.h"
#include "platform/VirtualKey.h"

#include <utility>

namespace brindlex {
namespace {

using Effect = MouseActionEffect::Any;

std::uint16_t keyCodeOf(const MouseAction::SendKeystroke& keystroke)
{
    if (!std::in_range<std::uint16_t>(keystroke.keyCode))
        fatalError("A keystroke has the key code " + std::to_string(keystroke.keyCode));
    return static_cast<std::uint16_t>(keystroke.keyCode);
}

} // namespace

std::string_view logLabel(const MouseAction::Any& action)
{
    using Label = std::string_view;
    return match(
        action, [](const MouseAction::MissionControl&) { return Label("Mission Control"); },
        [](const MouseAction::Back&) { return Label("Back"); },
        [](const MouseAction::Forward&) { return Label("Forward"); },
        [](const MouseAction::ShowDesktop&) { return Label("Show Desktop"); },
        [](const MouseAction::SwitchSpaceLeft&) { return Label("Switch Space Left"); },
        [](const MouseAction::SwitchSpaceRight&) { return Label("Switch Space Right"); },
        [](const MouseAction::SendKeystroke&) { return Label("Custom Shortcut"); },
        [](const MouseAction::RunShellCommand&) { return Label("Run Shell Command"); });
}

MouseActionEffect::Any effectOf(const MouseAction::Any& action)
{
    return match(
        action,
        [](const MouseAction::MissionControl&) -> Effect {
            return MouseActionEffect::OpenApplication{"/System/Applications/Mission Control.app"};
        },
        [](const MouseAction::Back&) -> Effect {
            return MouseActionEffect::PostKeystroke{virtualKey::leftBracket, eventFlag::command};
        },
        [](const MouseAction::Forward&) -> Effect {
            return MouseActionEffect::PostKeystroke{virtualKey::rightBracket, eventFlag::command};
        },
        [](const MouseAction::ShowDesktop&) -> Effect {
            return MouseActionEffect::PostKeystroke{virtualKey::f11, 0};
        },
        [](const MouseAction::SwitchSpaceLeft&) -> Effect {
            return MouseActionEffect::SwitchSpace{false};
        },
        [](const MouseAction::SwitchSpaceRight&) -> Effect {
            return MouseActionEffect::SwitchSpace{true};
        },
        [](const MouseAction::SendKeystroke& keystroke) -> Effect {
            return MouseActionEffect::PostKeystroke{
                keyCodeOf(keystroke), keystroke.modifiers.eventFlags()};
        },
        [](const MouseAction::RunShellCommand& shell) -> Effect {
            return MouseActionEffect::LaunchProcess{"/bin/zsh", {"-c", shell.command}};
        });
}

} // namespace brindlex
