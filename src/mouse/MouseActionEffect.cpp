#include "mouse/MouseActionEffect.h"

#include "foundation/FatalError.h"
#include "mouse/PlainMouseActions.h"

#include <utility>

namespace brindlex {
namespace {

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
        action, [](MouseAction::Plain plain) { return plainMouseAction(plain).logLabel; },
        [](const MouseAction::SendKeystroke&) { return Label("Custom Shortcut"); },
        [](const MouseAction::RunShellCommand&) { return Label("Run Shell Command"); });
}

MouseActionEffect::Any effectOf(const MouseAction::Any& action)
{
    using Effect = MouseActionEffect::Any;
    return match(
        action, [](MouseAction::Plain plain) -> Effect { return plainMouseAction(plain).effect; },
        [](const MouseAction::SendKeystroke& keystroke) -> Effect {
            return MouseActionEffect::PostKeystroke{
                keyCodeOf(keystroke), keystroke.modifiers.eventFlags()};
        },
        [](const MouseAction::RunShellCommand& shell) -> Effect {
            return MouseActionEffect::LaunchProcess{"/bin/zsh", {"-c", shell.command}};
        });
}

} // namespace brindlex
