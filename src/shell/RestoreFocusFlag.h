#pragma once

#include "platform/UserDefaults.h"

namespace brindlex {

/// Whether this process has taken the place of one that had the user's eyes, as after a change of
/// the language. Says so once: the flag is cleared on disk.
bool consumeRestoreFocusFlag(UserDefaults& defaults);

} // namespace brindlex
