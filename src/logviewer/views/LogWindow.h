#pragma once

#include "logviewer/LogScreen.h"
#include "logviewer/views/LogDetail.h"
#include "logviewer/views/LogLevelsButton.h"
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

namespace brindlex {

/// The window of the logs. It follows them while it is open; its arguments outlive it.
class LogWindow : public QWidget {
public:
    /// `reveal` shows a file where the user manages files.
    LogWindow(const ViewContext& context, MainThread& mainThread,
        std::function<void(const std::filesystem::path& file)> reveal);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeBar();
    QWidget* makeSubsystems();
    void makeTable();
    void sizeTable();
    QWidget* makeFoot();
    QWidget* makeEmpty();

    void show(LogDisplaySubsystem subsystem);
    void setLevels(const std::set<LogLevel>& levels);
    void showEntries();
    void showSelection();
    void selectRow(const QModelIndex& current);
    void follow(bool isOn);
    void reveal();
    void askToClear();

    const ViewContext context_;
    const std::function<void(const std::filesystem::path& file)> reveal_;
    LogScreen screen_;
    LogTableModel* const model_;
    QTableView* const table_;
    LogLevelsButton* const levels_;
    QPushButton* follow_ = nullptr;
    QStackedWidget* const middle_;
    LogDetail* const detail_;
    TextLabel* emptyTitle_ = nullptr;
    TextLabel* emptySubtitle_ = nullptr;
    TextLabel* count_ = nullptr;
    TextLabel* size_ = nullptr;
    Subscription changes_;
};

} // namespace brindlex
