#pragma once

#include "log/Log.h"
#include "ui/controls/ViewContext.h"

#include <QToolButton>

#include <functional>
#include <set>

namespace brindlex {

/// Chooses which levels of a log are shown: some sets of them at once, or each by itself.
class LogLevelsButton : public QToolButton {
public:
    /// `changed` is called with the levels that the user has chosen.
    LogLevelsButton(
        const ViewContext& context, std::function<void(const std::set<LogLevel>& levels)> changed);

    void show(const std::set<LogLevel>& levels);

private:
    void addChoice(const QString& text, const std::set<LogLevel>& levels);
    void addLevel(LogLevel level);
    void toggle(LogLevel level, bool isShown);
    QString wordsFor(const std::set<LogLevel>& levels) const;

    const ViewContext context_;
    const std::function<void(const std::set<LogLevel>& levels)> changed_;
    std::set<LogLevel> levels_;
};

} // namespace brindlex
