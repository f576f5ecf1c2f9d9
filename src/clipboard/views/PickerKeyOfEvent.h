#pragma once

#include "clipboard/ClipboardPickerKeys.h"

#include <optional>

class QKeyEvent;

namespace brindlex {

/// The key of an event of a window, as the picker knows it; nothing for one that means nothing to
/// it. Digits are those of the upper row, whatever stands on them.
std::optional<ClipboardPickerKey> pickerKeyOf(const QKeyEvent& event);

} // namespace brindlex
