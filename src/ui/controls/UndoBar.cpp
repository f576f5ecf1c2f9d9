#include "ui/controls/UndoBar.h"

#include "ui/controls/Buttons.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <utility>

namespace brindlex {
namespace {

constexpr std::chrono::seconds stay{6};
constexpr int barHeight = 44;
constexpr int margin = 16;
constexpr int fromEdge = 12;
constexpr double radius = 10;

} // namespace

UndoBar::UndoBar(const Theme& theme, const QString& undoText, QWidget* parent)
    : QFrame(parent), theme_(theme), words_(new TextLabel(theme, TextRole::body, {})),
      button_(makeButton(theme, ButtonRole::link, undoText, [this] { takeBack(); }))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, 4, margin - 4, 4);
    layout->setSpacing(margin);
    layout->addWidget(words_, 1);
    layout->addWidget(button_);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { leave(); });
    parent->installEventFilter(this);
    hide();
}

void UndoBar::offer(const QString& words, std::function<void()> undo)
{
    const int most = parentWidget()->width() * 3 / 5;
    words_->setText(words_->fontMetrics().elidedText(words, Qt::ElideMiddle, most));
    undo_ = std::move(undo);
    place();
    show();
    raise();
    timer_.start(stay);
}

void UndoBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme_.colour(&ThemeTokens::edge));
    painter.setBrush(theme_.colour(&ThemeTokens::card));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

bool UndoBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

void UndoBar::place()
{
    const auto size = sizeHint().expandedTo({0, barHeight});
    const auto* const parent = parentWidget();
    setGeometry(std::max(0, (parent->width() - size.width()) / 2),
        parent->height() - size.height() - fromEdge, size.width(), size.height());
}

void UndoBar::takeBack()
{
    timer_.stop();
    hide();
    if (const auto undo = std::exchange(undo_, nullptr))
        undo();
}

void UndoBar::leave()
{
    if (underMouse() || button_->hasFocus()) {
        timer_.start(stay);
        return;
    }
    hide();
    undo_ = nullptr;
}

} // namespace brindlex
