#pragma once

#include <QKeyEvent>
#include <QKeySequence>

namespace brindlex {

/// Whether the key closes the window that has it: Escape, or what the desktop has for it (Ctrl+W).
inline bool closesWindow(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Close) || event.key() == Qt::Key_Escape;
}

} // namespace brindlex
