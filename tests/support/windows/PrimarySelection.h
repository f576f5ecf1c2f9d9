#pragma once

#include "support/screen/XConnection.h"

#include <string>

namespace brindlex {

/// The text that is selected somewhere on the desktop; "nothing" when nobody has selected any.
std::string primarySelection(const XConnection& server);

} // namespace brindlex
