#pragma once

#include "foundation/Uuid.h"
#include "inputmethod/SmartInputMethodConfig.h"

#include <functional>
#include <vector>

namespace brindlex {

/// One step in a change of the configuration, to be applied to the configuration as it then is.
using SmartInputMethodStep = std::function<void(SmartInputMethodConfig&)>;

/// The steps that empty the entry with the identity and forget the application's manual switches,
/// in order; the entry itself and its `isDisabled` stay. Each step is to be stored on its own. None
/// when there is no such entry.
std::vector<SmartInputMethodStep> clearStats(const SmartInputMethodConfig& config, const Uuid& id);

/// The steps that remove the entries with the identity and forget the application's manual
/// switches, in order. Each step is to be stored on its own. None when there is no such entry.
std::vector<SmartInputMethodStep> deleteStats(const SmartInputMethodConfig& config, const Uuid& id);

} // namespace brindlex
