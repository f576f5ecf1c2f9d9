#pragma once

#include "logviewer/LogScreen.h"
#include "logviewer/views/LogTableModel.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/SearchField.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/ViewContext.h"

#include <QWidget>

#include <filesystem>
#include <functional>

class QPushButton;
class QStackedWidget;
class QTableView;
class QToolButton;

namespace brindlex {

/// The window of the logs. It follows them while it is open; its arguments outlive it.
class LogWindow : public QWidget {
public:
    /// `reveal` shows a file where the user manages files.
    LogWindow(const ViewContext& context, MainThread& mainThread,
        std::function<void(const std::filesystem::path& file)> reveal);

private:
    QWidget* makeBar();
    QWidget* makeSubsystems();
    void makeLevels();
    void makeTable();
    QWidget* makeDetail();
    QWidget* makeFoot();
    QWidget* makeEmpty();

    void show(LogDisplaySubsystem subsystem);
    void toggle(LogLevel level, bool isShown);
    void setLevels(std::set<LogLevel> levels);
    void showLevels();
    void showEntries();
    void showSelection();
    void selectRow(const QModelIndex& current);
    void follow(bool isOn);
    void copy(const std::string& text);
    void reveal();
    void askToClear();

    const ViewContext context_;
    const std::function<void(const std::filesystem::path& file)> reveal_;
    LogScreen screen_;
    LogTableModel* const model_;
    QTableView* const table_;
    QToolButton* const levels_;
    QPushButton* follow_ = nullptr;
    QStackedWidget* const middle_;
    TextLabel* emptyTitle_ = nullptr;
    TextLabel* emptySubtitle_ = nullptr;
    QWidget* detail_ = nullptr;
    TextLabel* message_ = nullptr;
    TextLabel* place_ = nullptr;
    TextLabel* count_ = nullptr;
    TextLabel* size_ = nullptr;
    Subscription changes_;
};

} // namespace brindlex
