#pragma once

#include "inputmethod/TextInputSource.h"

#include <string>

namespace brindlex {

/// The short name of a source, as an indicator in a panel shows it: of a layout its code in capital
/// letters, "US", and of an input method the first character of its name.
std::string inputSourceBadge(const TextInputSource& source);

} // namespace brindlex
