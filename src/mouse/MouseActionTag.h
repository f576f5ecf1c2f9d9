#pragma once

#include "eventtap/HotkeyCombo.h"
#include "mouse/MouseAction.h"

namespace brindlex {

/// The actions that can be chosen, in their order.
enum class MouseActionTag { missionControl, switchSpaceLeft, switchSpaceRight, sendKeystroke };

/// What a chooser shows for an action. Those that it does not offer, which stand in the preferences
/// all the same, are kept and shown as `switchSpaceLeft`.
MouseActionTag tagOf(const MouseAction::Any& action);

/// The action that a choice stands for; a keystroke has no key yet.
MouseAction::Any actionWithTag(MouseActionTag tag);

/// The key of a keystroke; no key, which is -1, and no modifiers for any other action.
HotkeyCombo keystrokeOf(const MouseAction::Any& action);

/// The action with another key; unchanged if it is no keystroke.
MouseAction::Any withKeystroke(const MouseAction::Any& action, const HotkeyCombo& combo);

} // namespace brindlex
