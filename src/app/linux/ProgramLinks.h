#pragma once

#include "shell/views/AboutScreen.h"

namespace brindlex {

/// Where the build says that its maker can be reached.
AboutLinks programLinks();

} // namespace brindlex
