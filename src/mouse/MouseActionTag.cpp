#include "mouse/MouseActionTag.h"

namespace brindlex {
namespace {

constexpr HotkeyCombo noKey{-1, {}};

MouseActionTag tagOfPlain(MouseAction::Plain action)
{
    switch (action) {
    case MouseAction::Plain::missionControl:
        return MouseActionTag::missionControl;
    case MouseAction::Plain::switchSpaceRight:
        return MouseActionTag::switchSpaceRight;
    case MouseAction::Plain::back:
    case MouseAction::Plain::forward:
    case MouseAction::Plain::showDesktop:
    case MouseAction::Plain::switchSpaceLeft:
        break;
    }
    return MouseActionTag::switchSpaceLeft;
}

} // namespace

MouseActionTag tagOf(const MouseAction::Any& action)
{
    return match(
        action, [](MouseAction::Plain plain) { return tagOfPlain(plain); },
        [](const MouseAction::SendKeystroke&) { return MouseActionTag::sendKeystroke; },
        [](const MouseAction::RunShellCommand&) { return MouseActionTag::switchSpaceLeft; });
}

MouseAction::Any actionWithTag(MouseActionTag tag)
{
    switch (tag) {
    case MouseActionTag::missionControl:
        return MouseAction::Plain::missionControl;
    case MouseActionTag::switchSpaceLeft:
        return MouseAction::Plain::switchSpaceLeft;
    case MouseActionTag::switchSpaceRight:
        return MouseAction::Plain::switchSpaceRight;
    case MouseActionTag::sendKeystroke:
        break;
    }
    return MouseAction::SendKeystroke{noKey.keyCode, noKey.modifiers};
}

HotkeyCombo keystrokeOf(const MouseAction::Any& action)
{
    return match(
        action, [](MouseAction::Plain) { return noKey; },
        [](const MouseAction::SendKeystroke& stroke) {
            return HotkeyCombo{stroke.keyCode, stroke.modifiers};
        },
        [](const MouseAction::RunShellCommand&) { return noKey; });
}

MouseAction::Any withKeystroke(const MouseAction::Any& action, const HotkeyCombo& combo)
{
    if (tagOf(action) != MouseActionTag::sendKeystroke)
        return action;
    return MouseAction::SendKeystroke{combo.keyCode, combo.modifiers};
}

} // namespace brindlex
