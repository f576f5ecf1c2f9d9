#pragma once

#include "support/screen/XConnection.h"

#include <string>
#include <vector>

namespace brindlex {

/// The names of the devices that belong to no pointer and no keyboard at the moment, as those that
/// a program has taken, in the order of the server.
std::vector<std::string> floatingDevices(const XConnection& server);

/// Plugs a device in or pulls it out, by its name, as far as the server sees it.
void setDevicePresent(const XConnection& server, const std::string& name, bool isPresent);

/// Takes a device for the connection alone, by its name; whether that was allowed.
bool takeDevice(const XConnection& server, const std::string& name);

/// Takes a button of a device for the connection alone, as it counts them, with whatever modifiers;
/// whether that was allowed.
bool takeButton(const XConnection& server, const std::string& name, std::uint32_t button);

} // namespace brindlex
