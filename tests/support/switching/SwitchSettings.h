#pragma once

#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"
#include "support/scenarios/ScenarioWords.h"

namespace brindlex {

/// Changes a setting of the switching of input sources by words such as "hud off", "learned rules
/// on" or "threshold 70".
void changeSetting(
    ScenarioWords& words, InputMethodConfig& config, SmartInputMethodConfig& smartConfig);

} // namespace brindlex
