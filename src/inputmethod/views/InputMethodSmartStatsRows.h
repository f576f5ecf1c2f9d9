#pragma once

#include "inputmethod/views/SmartStatsModel.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/Page.h"

class QKeySequence;
class QPoint;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

namespace brindlex {

/// The table of what was learned. Its order is that of the list until the user asks for another by
/// a click on a head. The row under it is about the selected application: why it has its source,
/// and buttons, which are in the menu of its row, too.
class InputMethodSmartStatsRows {
public:
    InputMethodSmartStatsRows(
        Page& page, const ViewContext& context, InputMethodSettings& settings);

    void show();

private:
    void makeTable();
    void makeActions();
    void makeShortcut(const QKeySequence& keys, void (InputMethodSmartStatsRows::*action)());
    void sizeTable();
    void fit();
    void noteSelection();
    /// Null where no application is selected.
    const SmartInputMethodAppStats* selected() const;
    void openMenuOfCurrentRow();
    void openMenu(const QPoint& place);
    void switchSelected(bool isDisabled);
    void clearStats();
    void deleteStats();

    Page& page_;
    const ViewContext context_;
    InputMethodSettings& settings_;
    Card& card_;
    QTableView* const table_;
    SmartStatsModel* const model_;
    QSortFilterProxyModel* const sorted_;
    EmptyState* empty_ = nullptr;
    QPushButton* clear_ = nullptr;
    QPushButton* delete_ = nullptr;
    Row* actions_ = nullptr;
};

} // namespace brindlex
