#pragma once

#include "logviewer/LogEntry.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/ViewContext.h"

#include <QFrame>

#include <functional>
#include <string>

namespace brindlex {

/// The selected entry of a log spelled out, with buttons that copy it. Hidden while none is
/// selected.
class LogDetail : public QFrame {
public:
    /// `selected` returns the entry when it is copied; null for none.
    LogDetail(const ViewContext& context, std::function<const LogEntry*()> selected);

    void show(const LogEntry* entry);

private:
    QWidget* makeWords();
    void copy(std::string LogEntry::*text) const;

    const ViewContext context_;
    const std::function<const LogEntry*()> selected_;
    TextLabel* const message_;
    TextLabel* const place_;
};

} // namespace brindlex
