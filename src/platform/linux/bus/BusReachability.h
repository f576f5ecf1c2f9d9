#pragma once

#include <chrono>
#include <string>

namespace brindlex {

/// Whether a message bus at the address lets a client in within the time.
///
/// The D-Bus library of Qt waits without bounds for a bus that accepts a connection and then says
/// nothing, and all its other connections wait with it: whoever connects by it asks here first.
/// False for an empty address and one that starts a bus ("autolaunch:"). Callable from any thread;
/// leaves no connection behind.
bool isBusReplying(const std::string& address, std::chrono::milliseconds patience);

} // namespace brindlex
