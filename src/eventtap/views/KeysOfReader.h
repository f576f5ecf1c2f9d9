#pragma once

#include "eventtap/KeyCaps.h"
#include "ui/controls/ViewContext.h"

namespace brindlex {

/// The names of the keys of a PC in the language of the texts. The texts outlive it.
KeyNaming keysOfReader(const ViewContext& context, KeyCharacters characters);

} // namespace brindlex
