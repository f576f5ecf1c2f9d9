#include "ui/controls/Page.h"

#include "ui/controls/TextLabel.h"
#include "ui/controls/TextSize.h"
#include "ui/controls/UndoBar.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

constexpr int columnWidth = 620;
constexpr int sideMargin = 24;
constexpr int endMargin = 16;
constexpr int aboveHeading = 28;
constexpr int belowHeading = 8;
constexpr int betweenCards = 12;
constexpr int barRoom = 10;
constexpr int barWidth = 8;
/// How much is to be seen around what has the focus.
constexpr int focusMargin = 24;

/// What takes the focus by Tab, in the order of the layouts.
void collectFocusable(QWidget& widget, std::vector<QWidget*>& found)
{
    if (widget.focusPolicy() & Qt::TabFocus)
        found.push_back(&widget);
    const auto* const layout = widget.layout();
    for (int index = 0; layout && index < layout->count(); ++index)
        if (auto* const child = layout->itemAt(index)->widget())
            collectFocusable(*child, found);
}

} // namespace

Page::Page(const ViewContext& context, QWidget* parent)
    : QScrollArea(parent), context_(context), ground_(new QWidget), column_(new QWidget),
      layout_(new QVBoxLayout(column_)), bar_(new QScrollBar(Qt::Vertical, this))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    layout_->setContentsMargins({});
    layout_->setSpacing(0);
    followTextSize(*column_, [this] { column_->setMaximumWidth(grownWithText(columnWidth)); });
    ground_->setObjectName("page");
    auto* const centred = new QHBoxLayout(ground_);
    centred->setContentsMargins(sideMargin, endMargin, sideMargin, endMargin);
    centred->addWidget(column_);
    setWidget(ground_);
    column_->installEventFilter(this);

    bar_->hide();
    auto* const real = verticalScrollBar();
    connect(real, &QScrollBar::rangeChanged, bar_, [this](int least, int most) {
        bar_->setRange(least, most);
        bar_->setVisible(most > least);
    });
    connect(real, &QScrollBar::valueChanged, bar_, &QScrollBar::setValue);
    connect(bar_, &QScrollBar::valueChanged, real, &QScrollBar::setValue);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget*, const QWidget* focused) { follow(focused); });
}

/// The focus leaves a window while it is destroyed, when this is a page no more.
Page::~Page() { disconnect(qApp, nullptr, this, nullptr); }

Card& Page::section(const QString& heading, const QString& second)
{
    if (layout_->count() > 0)
        layout_->addSpacing(heading.isEmpty() ? betweenCards : aboveHeading);
    const auto addLine = [&](TextRole role, const QString& text) {
        if (text.isEmpty())
            return;
        auto* const line = new TextLabel(context_.theme, role, text);
        line->setContentsMargins(2, 0, 2, 0);
        layout_->addWidget(line);
    };
    addLine(TextRole::heading, heading);
    addLine(TextRole::second, second);
    if (!heading.isEmpty())
        layout_->addSpacing(belowHeading);
    auto* const card = new Card(context_.theme);
    if (!heading.isEmpty())
        card->setAccessibleName(heading);
    layout_->addWidget(card);
    return *card;
}

void Page::add(QWidget* widget) { layout_->addWidget(widget); }

void Page::finish() { layout_->addStretch(); }

void Page::offerUndo(const QString& removed, std::function<void()> undo)
{
    if (!undoBar_)
        undoBar_ = new UndoBar(context_.theme, context_.text<"controls.undo">(), this);
    undoBar_->offer(
        context_.text<"controls.removedFormat">(removed.toStdString()), std::move(undo));
}

bool Page::event(QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest)
        fit();
    return QScrollArea::event(event);
}

void Page::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

/// A row that comes or goes changes the height of all.
bool Page::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == column_ && event->type() == QEvent::LayoutRequest) {
        fit();
        putInOrder();
    }
    return QScrollArea::eventFilter(watched, event);
}

/// Lines that wrap are measured at the real width.
void Page::fit()
{
    bar_->setPageStep(height());
    bar_->setGeometry(width() - barRoom, 2, barWidth, height() - 4);
    const int needed = ground_->layout()->hasHeightForWidth()
        ? ground_->layout()->totalHeightForWidth(viewport()->width())
        : ground_->sizeHint().height();
    ground_->setFixedHeight(std::max(needed, viewport()->height()));
}

/// Tab goes from one to the next as they are read, also where a row came later.
void Page::putInOrder() const
{
    std::vector<QWidget*> inOrder;
    collectFocusable(*column_, inOrder);
    for (std::size_t index = 1; index < inOrder.size(); ++index)
        QWidget::setTabOrder(inOrder[index - 1], inOrder[index]);
}

/// What has the focus is in sight, with what is around it.
void Page::follow(const QWidget* focused)
{
    if (focused && ground_->isAncestorOf(focused))
        ensureWidgetVisible(const_cast<QWidget*>(focused), 0, focusMargin);
}

} // namespace brindlex
