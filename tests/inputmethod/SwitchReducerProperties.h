#pragma once

#include "inputmethod/SwitchReducer.h"
#include "support/switching/SwitchComputer.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// One event that the switching has seen, with what there was before it and what came of it.
struct SwitchStep {
    const SwitchEvent::Any& event;
    const SwitchState& before;
    const SmartInputMethodConfig& smartBefore;
    const std::optional<std::string>& sourceBefore;
    const std::vector<SwitchEffect::Any>& effects;
    const SwitchState& after;
    const SmartInputMethodConfig& smartAfter;
    const InputMethodConfig& config;
    /// With the selections of this step alone.
    const SwitchComputer& computer;
    /// Whether the shell tells a stopped machine only of what may start it.
    bool isOrderly;
};

/// Checks everything that must hold of any step.
void expectProperties(const SwitchStep& step);

} // namespace brindlex
