#pragma once

#include <string>

namespace brindlex {

/// What is on the screen that `DISPLAY` names, for the words of a failure: the window in front, the
/// one that gets the keys, the pointer, and all windows.
std::string screenState();

} // namespace brindlex
