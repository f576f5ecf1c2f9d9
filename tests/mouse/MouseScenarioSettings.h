#pragma once

#include "mouse/MouseConfig.h"
#include "support/scenarios/ScenarioWords.h"

#include <cstdint>

namespace brindlex {

/// Changes a setting of the mouse by words such as "gesture command+button4 right forward",
/// "threshold 40" or "scroll smooth on".
void changeSetting(ScenarioWords& words, MouseConfig& config);

/// "command+shift" as the flags of an event.
std::uint64_t takeModifiers(ScenarioWords& words);

} // namespace brindlex
