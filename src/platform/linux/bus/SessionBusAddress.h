#pragma once

#include <string>

namespace brindlex {

/// Where the message bus of the user's session is: as the environment names it now, or else at the
/// usual place below XDG_RUNTIME_DIR; empty when it names neither.
std::string sessionBusAddress();

} // namespace brindlex
