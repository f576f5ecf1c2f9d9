#pragma once

#include "clipboard/ClipboardItems.h"
#include "clipboard/ClipboardPickerKeys.h"
#include "foundation/Date.h"
#include "ui/controls/ViewContext.h"

#include <QAbstractListModel>
#include <QIcon>

#include <functional>
#include <map>
#include <string>

namespace brindlex {

/// What the rows of the picker know beside their items.
struct ClipboardRowSources {
    /// The name of an application; empty when nobody knows it.
    std::function<QString(const std::string& bundleID)> applicationName{};
    /// What an item looks like; a null one until that is known, and of what has no picture.
    std::function<QIcon(const ClipboardItem& item)> picture{};
    std::function<Date()> now{};
};

/// The visible items of the picker as rows: what each is, from which application and how long ago,
/// and the digit that chooses it. A row is made up when it comes into sight.
class ClipboardItemRows : public QAbstractListModel {
public:
    /// Of a list, so many rows can be chosen by a digit.
    static constexpr int rowsWithDigit = static_cast<int>(clipboardDigitKeys.size());

    ClipboardItemRows(const ViewContext& context, ClipboardRowSources sources, QObject* parent);

    void show(ClipboardItems items);
    /// The row of the item; -1 when it is not visible.
    int rowOf(const SharedClipboardItem& item) const;

    /// Draws the rows again whose pictures have become known.
    void showPictures();

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString titleOf(const ClipboardItem& item) const;
    QString secondLineOf(const ClipboardItem& item) const;
    QIcon pictureOf(const ClipboardItem& item) const;

    const ViewContext context_;
    const ClipboardRowSources sources_;
    ClipboardItems items_;
};

} // namespace brindlex
