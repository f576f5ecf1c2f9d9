#pragma once

#include "inputmethod/SwitchEffect.h"
#include "inputmethod/SwitchEvent.h"
#include "inputmethod/SwitchState.h"

#include <ostream>
#include <string>

namespace brindlex {

/// The words in which tests and scenario files describe what happens to the switching of input
/// sources.
std::string text(const SwitchEvent::Any& event);
std::string text(const SwitchEffect::Any& effect);
std::string text(const InputMethodAutoSwitchContext::Any& context);
std::string text(SwitchState::Lifecycle lifecycle);

/// One field a line.
std::string text(const SwitchState& state);

std::string text(const InputMethodSwitchDecision& decision);

void PrintTo(const InputMethodConfig& config, std::ostream* out);
void PrintTo(const SmartInputMethodConfig& config, std::ostream* out);
void PrintTo(const SmartInputMethodAppStats& stats, std::ostream* out);

inline void PrintTo(const SwitchState& state, std::ostream* out) { *out << text(state); }

inline void PrintTo(const InputMethodSwitchDecision& decision, std::ostream* out)
{
    *out << text(decision);
}

inline void PrintTo(const SwitchEffect::FireHUD& effect, std::ostream* out)
{
    *out << text(SwitchEffect::Any{effect});
}

inline void PrintTo(const SwitchEffect::LogWarning& effect, std::ostream* out)
{
    *out << text(SwitchEffect::Any{effect});
}

} // namespace brindlex
