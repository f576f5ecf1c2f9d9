#pragma once

#include <string>

namespace brindlex {

/// Whether an input-method server of this name serves the display, so that a program started now
/// will type through it.
bool hasXInputMethodServer(const std::string& name);

} // namespace brindlex
