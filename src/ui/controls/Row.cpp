#include "ui/controls/Row.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/GlyphLabel.h"
#include "ui/controls/TextSize.h"
#include "ui/controls/ToggleSwitch.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int margin = 16;
/// Of a switch, whose room for the ring hangs into the margin; of a cross, whose picture does.
constexpr int switchMargin = 12;
constexpr int crossMargin = 10;
constexpr int oneLine = 44;
constexpr int twoLines = 52;
constexpr int gap = 8;
constexpr int wordsGap = 12;
constexpr int warningSize = 14;
/// As high as two lines.
constexpr int largePicture = 32;

void setRight(QHBoxLayout& layout, int right)
{
    auto margins = layout.contentsMargins();
    margins.setRight(right);
    layout.setContentsMargins(margins);
}

} // namespace

Row::Row(const Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme), layout_(new QHBoxLayout(this))
{
    layout_->setContentsMargins(margin, 4, margin, 4);
    layout_->setSpacing(gap);
    followTextSize(*this, [this] { setMinimumHeight(grownWithText(leastHeight_)); });
    setLeastHeight(oneLine);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget*, const QWidget* focused) { noteFocus(focused); });
}

Row& Row::picture(const QIcon& icon, int size)
{
    auto* const label = new GlyphLabel(icon, size);
    layout_->addWidget(label);
    layout_->addSpacing(wordsGap - gap);
    if (size >= largePicture)
        setLeastHeight(twoLines);
    return *this;
}

Row& Row::words(const QString& title, const QString& second)
{
    makeWords();
    setTitle(title);
    setSecond(second);
    return *this;
}

Row& Row::end(QWidget* control)
{
    layout_->addWidget(control, 0, Qt::AlignVCenter);
    if (dynamic_cast<ToggleSwitch*>(control))
        setRight(*layout_, switchMargin);
    return *this;
}

Row& Row::fill(QWidget* control)
{
    layout_->addWidget(control, 1);
    return *this;
}

Row& Row::removable(const QString& name, std::function<void()> remove)
{
    remove_ = std::move(remove);
    cross_ = makeGlyphButton(
        theme_, Glyph::cross, name, [this] { remove_(); }, &ThemeTokens::edge);
    layout_->addWidget(cross_);
    setRight(*layout_, crossMargin);
    return *this;
}

Row& Row::setLeastHeight(int height)
{
    leastHeight_ = height;
    setMinimumHeight(grownWithText(height));
    return *this;
}

void Row::setTitle(const QString& title) { title_->setText(title); }

void Row::setSecond(const QString& words) { show(*second_, *second_, words); }

void Row::setWarning(const QString& words) { show(*warning_, *warningLine_, words); }

int Row::wordsLeft() const { return wordsBox_ ? wordsBox_->x() : margin; }

void Row::enterEvent(QEnterEvent* event)
{
    isHovered_ = true;
    noteHot();
    QWidget::enterEvent(event);
}

void Row::leaveEvent(QEvent* event)
{
    isHovered_ = false;
    noteHot();
    QWidget::leaveEvent(event);
}

void Row::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && remove_)
        remove_();
    else
        QWidget::keyPressEvent(event);
}

/// The name, and under it the lines that the row may have.
void Row::makeWords()
{
    wordsBox_ = new QWidget;
    auto* const column = new QVBoxLayout(wordsBox_);
    column->setContentsMargins(0, 4, 0, 4);
    column->setSpacing(1);
    title_ = new TextLabel(theme_, TextRole::body, {});
    second_ = new TextLabel(theme_, TextRole::second, {});
    makeWarning();
    column->addStretch();
    column->addWidget(title_);
    column->addWidget(second_);
    column->addWidget(warningLine_);
    column->addStretch();
    layout_->addWidget(wordsBox_, 1);
    layout_->addSpacing(gap);
}

/// Words behind a picture.
void Row::makeWarning()
{
    warningLine_ = new QWidget;
    warningLine_->hide();
    warning_ = new TextLabel(theme_, TextRole::warning, {});
    auto* const line = new QHBoxLayout(warningLine_);
    line->setContentsMargins({});
    line->setSpacing(5);
    line->addWidget(
        new GlyphLabel(glyphIcon(theme_, Glyph::warning, &ThemeTokens::warning), warningSize), 0,
        Qt::AlignTop);
    line->addWidget(warning_, 1);
}

void Row::show(TextLabel& label, QWidget& line, const QString& words)
{
    label.setText(words);
    line.setVisible(!words.isEmpty());
    if (!words.isEmpty())
        setLeastHeight(std::max(leastHeight_, twoLines));
}

void Row::noteFocus(const QWidget* focused)
{
    const bool isWithin = focused && isAncestorOf(focused);
    if (isWithin == hasFocusWithin_)
        return;
    hasFocusWithin_ = isWithin;
    noteHot();
}

/// A row that can go shows it: its ground changes, which the card paints, and its cross gains ink.
void Row::noteHot()
{
    if (!remove_)
        return;
    cross_->setIcon(
        glyphIcon(theme_, Glyph::cross, isHot() ? &ThemeTokens::text : &ThemeTokens::edge));
    if (parentWidget())
        parentWidget()->update(geometry());
}

} // namespace brindlex
