#pragma once

#include "platform/Event.h"

#include <string>
#include <vector>

namespace brindlex {

/// What reached the applications, as scenarios write it: "click button4 100,100", "key 30 with
/// command", "scroll -20 0".
std::vector<std::string> scenarioText(const std::vector<Event>& events);

} // namespace brindlex
