#pragma once

#include <QString>

namespace brindlex {

/// The input context that has the keyboard, by what Fcitx 5 prints of all its contexts for people
/// who look for a fault: a line each, "  IC [0a1b] program:xterm frontend:xim cap:72 focus:1".
/// Empty when none has it.
QString fcitx5FocusedContext(const QString& debugInfo);

} // namespace brindlex
