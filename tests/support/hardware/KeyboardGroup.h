#pragma once

#include "support/screen/XConnection.h"

namespace brindlex {

/// The group, counted from 0, of the server's keyboard layouts that keys are read with.
int keyboardGroup(const XConnection& server);

/// Selects a group, as a user does with the layout key.
void selectKeyboardGroup(const XConnection& server, int group);

/// Locks exactly these modifiers, by their bits, on all keyboards.
void lockModifiers(const XConnection& server, std::uint8_t modifiers);

} // namespace brindlex
