#include "ui/controls/SuggestionList.h"

#include "ui/controls/TableCells.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QStandardItemModel>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int rowHeight = 36;
constexpr int mostRowsInSight = 6;
constexpr int distance = 4;

QStandardItem* itemOf(const Suggestion& suggestion)
{
    auto* const item = new QStandardItem(suggestion.icon, suggestion.text);
    item->setData(suggestion.detail, trailingTextRole);
    item->setData(suggestion.detail, Qt::AccessibleDescriptionRole);
    return item;
}

} // namespace

SuggestionList::SuggestionList(const Theme& theme, QLineEdit& field, QAbstractScrollArea& ground,
    std::function<void(const QString&)> take)
    : QListView(&ground), field_(field), ground_(ground), model_(new QStandardItemModel(this)),
      take_(std::move(take))
{
    setObjectName("suggestions");
    setAccessibleName(field.accessibleName());
    setModel(model_);
    setItemDelegate(new TableCells(theme, rowHeight, this));
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    connect(this, &QListView::entered, this, [this](const auto& index) { choose(index.row()); });
    connect(this, &QListView::clicked, this, [this](const auto& index) { this->take(index); });
    connect(ground.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { place(); });
    field.installEventFilter(this);
    ground.installEventFilter(this);
    hide();
}

void SuggestionList::suggest(const std::vector<Suggestion>& suggestions)
{
    model_->clear();
    for (const auto& suggestion : suggestions)
        model_->appendRow(itemOf(suggestion));
    setVisible(!suggestions.empty());
    place();
    raise();
}

bool SuggestionList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &ground_ && event->type() == QEvent::Resize)
        place();
    if (watched == &field_ && event->type() == QEvent::FocusOut)
        hide();
    if (watched == &field_ && event->type() == QEvent::KeyPress && isVisible())
        return handleKey(dynamic_cast<QKeyEvent*>(event)->key());
    return QListView::eventFilter(watched, event);
}

/// Returns whether the key was for the list.
bool SuggestionList::handleKey(int key)
{
    const auto chosen = currentIndex();
    switch (key) {
    case Qt::Key_Down:
        choose(std::min(chosen.row() + 1, model_->rowCount() - 1));
        return true;
    case Qt::Key_Up:
        choose(chosen.row() - 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        take(chosen);
        return chosen.isValid();
    case Qt::Key_Escape:
        hide();
        return true;
    default:
        return false;
    }
}

/// Without such a row none is chosen.
void SuggestionList::choose(int row) { setCurrentIndex(model_->index(row, 0)); }

void SuggestionList::take(const QModelIndex& index)
{
    hide();
    if (index.isValid())
        take_(index.data().toString());
}

/// Under the field, or over it where there is more room.
void SuggestionList::place()
{
    if (isHidden())
        return;
    const auto area = QRect(field_.mapTo(&ground_, QPoint()), field_.size());
    const int rows = std::min(model_->rowCount(), mostRowsInSight);
    const int height = rows * sizeHintForRow(0) + 2 * frameWidth();
    const int under = area.bottom() + distance;
    const bool fits = under + height <= ground_.height() || area.top() < height;
    setGeometry(area.left(), fits ? under : area.top() - distance - height, area.width(), height);
}

} // namespace brindlex
