#pragma once

#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"
#include "inputmethod/SwitchEffect.h"
#include "inputmethod/SwitchEnvironment.h"
#include "inputmethod/SwitchEvent.h"
#include "inputmethod/SwitchState.h"

#include <vector>

namespace brindlex {

/// Advances the switching of input sources by one event.
///
///                start, switched on             browser in front
///     ▶ stopped ────────────────────▶ observing ──────────────────▶ observingWithBrowserPolling
///        ▲  ▲                          │     ▲                       │        │
///        │  └─── stop, switched off ───┘     └── other application, ─┘        │
///        │                                       website rules off            │
///        └──────────────────────── stop, switched off ────────────────────────┘
///
/// An activation and a look at the browser's page attempt a switch: they ask the rules and select
/// what these return, once per place, so that a user who changes the source afterwards is left
/// alone until another place had an automatic switch. A change of the source that is not the echo
/// of an own selection, one second long, is the user's, and is learned from.
///
/// What the desktop changes by itself is not the user's: it is neither learned from nor does it
/// keep rules from applying. Rules apply to it as to an activation, unless the user has chosen in
/// the application since it came to the front. A selection that the desktop undoes is made once
/// more; undone again, it is let be until the next activation, and the overlay is taken back.
///
/// Changes `state` and, for a manual change, `smartConfig`; selects at most one source, through the
/// environment. The effects are to be carried out in the order of the list: first those on
/// observers and polling, last the overlay or the warning. Events come one at a time.
std::vector<SwitchEffect::Any> reduce(const SwitchEvent::Any& event, SwitchState& state,
    SmartInputMethodConfig& smartConfig, const InputMethodConfig& config,
    const SwitchEnvironment& environment);

} // namespace brindlex
