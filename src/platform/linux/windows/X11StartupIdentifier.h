#pragma once

#include <string>

namespace brindlex {

/// An identifier for a program that is started at this moment of the X server's time, so that
/// window managers let its first window come to the front (Startup Notification Protocol 0.1).
/// Asked for by a connection of its own; empty without a server.
std::string startupIdentifierForNow();

} // namespace brindlex
