#pragma once

#include "ui/controls/Theme.h"

#include <QStyledItemDelegate>

namespace brindlex {

/// What a cell of a table has beside its text.
enum TableRole {
    /// A second, smaller line (text).
    secondLineRole = Qt::UserRole + 1,
    /// The colour of its text (`Token`).
    inkRole,
    /// A dot of this colour before the text (`Token`).
    dotRole,
    /// Whether its letters have one width (bool).
    fixedWidthRole,
    /// What stands at its other end, smaller and subdued (text).
    trailingTextRole,
};

/// Draws the cells of all tables: no lines, the selected row a tint with a bar at its left. Numbers
/// stand at the right where the model says so, and check marks in the middle. The theme outlives
/// it.
class TableCells : public QStyledItemDelegate {
public:
    explicit TableCells(const Theme& theme, QObject* parent = nullptr);
    /// For a list, whose rows are as high as its cells.
    TableCells(const Theme& theme, int rowHeight, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

private:
    void paintGround(
        QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintCheck(QPainter& painter, const QRect& place, bool isChecked) const;
    void paintWords(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option,
        const QModelIndex& index) const;
    /// Both return what is left of the place.
    QRect paintLeading(QPainter& painter, QRect place, const QModelIndex& index) const;
    QRect paintTrailing(QPainter& painter, QRect place, const QStyleOptionViewItem& option,
        const QModelIndex& index) const;

    const Theme& theme_;
    const int rowHeight_ = 0;
};

} // namespace brindlex

Q_DECLARE_METATYPE(brindlex::Token)
