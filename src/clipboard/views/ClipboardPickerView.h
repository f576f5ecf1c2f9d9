#pragma once

#include "clipboard/ClipboardPicker.h"
#include "clipboard/views/ClipboardItemRows.h"
#include "eventtap/KeyCaps.h"
#include "ui/controls/ViewContext.h"

#include <QWidget>

#include <memory>
#include <vector>

class QListView;
class QPushButton;
class QStackedWidget;

namespace brindlex {

class ClipboardSearchField;

/// The picker in a panel: the field of the query and the categories, the list, and which keys do
/// what. It keeps the picker, and its size while it is shown. The rest outlives it.
class ClipboardPickerView : public QWidget {
public:
    ClipboardPickerView(const ViewContext& context, const KeyNaming& keys,
        ClipboardRowSources sources, std::shared_ptr<ClipboardPicker> picker);

    /// Draws the rows again whose pictures have become known.
    void showPictures() { rows_->showPictures(); }

private:
    QWidget* makeTop(const ViewContext& context);
    QWidget* makeCategories(const ViewContext& context);
    QWidget* makeList(const ViewContext& context);
    static QWidget* makeNothing(const ViewContext& context);
    QWidget* makeHints(const ViewContext& context, const KeyNaming& keys);
    void showContent(const ClipboardPicker::Content& content);

    const std::shared_ptr<ClipboardPicker> picker_;
    ClipboardSearchField* const search_;
    QListView* const list_;
    ClipboardItemRows* const rows_;
    QStackedWidget* const middle_;
    /// In the order of the categories.
    std::vector<QPushButton*> categories_;
    ClipboardItems shown_;
    Subscription contentChanges_;
};

} // namespace brindlex
