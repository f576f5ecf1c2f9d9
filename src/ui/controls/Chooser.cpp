#include "ui/controls/Chooser.h"

#include "ui/controls/Glyph.h"
#include "ui/controls/TextSize.h"

#include <QIconEngine>
#include <QListView>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QVariant>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr QSize usualBadge{24, 16};
/// Of the letters, as a part of the badge.
constexpr double badgeLetters = 0.625;
constexpr int chevronSize = 12;
constexpr int chevronRoom = 20;
constexpr int badgeGap = 4;
/// Borders, padding and the place of the chevron.
constexpr int aroundText = 44;

/// The short name of a keyboard, as an indicator in a panel shows it. It is drawn in the colours of
/// the moment.
class BadgeIconEngine : public QIconEngine {
public:
    BadgeIconEngine(const Theme& theme, QString letters)
        : theme_(theme), letters_(std::move(letters))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        auto font = painter->font();
        font.setPixelSize(qRound(rect.height() * badgeLetters));
        font.setWeight(QFont::DemiBold);
        painter->setFont(font);
        painter->setPen(theme_.colour(&ThemeTokens::subdued));
        painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        painter->drawText(rect, Qt::AlignCenter, letters_);
        painter->restore();
    }
    QPixmap scaledPixmap(
        const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        QPixmap pixmap(size);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size / scale), mode, state);
        return pixmap;
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }
    QIconEngine* clone() const override { return new BadgeIconEngine(*this); }

private:
    const Theme& theme_;
    const QString letters_;
};

} // namespace

Chooser::Chooser(const Theme& theme, const QString& name,
    std::function<void(const std::string& value)> chosen, QWidget* parent)
    : QComboBox(parent), theme_(theme)
{
    setAccessibleName(name);
    // On Linux the name of such a control is what is chosen.
    setAccessibleDescription(name);
    setFocusPolicy(Qt::StrongFocus);
    followTextSize(*this, [this] { setIconSize(grownWithText(usualBadge)); });
    // One that adjusts to its contents by itself breaks out of its layout.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // The list as a list, not as a menu over the control.
    setView(new QListView(this));
    connect(this, &QComboBox::activated, this, [this, chosen = std::move(chosen)](int index) {
        setToolTip(currentText());
        if (index >= 0 && static_cast<std::size_t>(index) < options_.size())
            chosen(options_[static_cast<std::size_t>(index)].value);
    });
}

void Chooser::show(const std::vector<Option>& options, const std::string& value)
{
    const QSignalBlocker blocker(this);
    if (options != options_)
        fill(options);
    const auto found = std::find_if(options_.begin(), options_.end(),
        [&](const Option& option) { return option.value == value; });
    setCurrentIndex(
        found == options_.end() ? -1 : static_cast<int>(std::distance(options_.begin(), found)));
    setToolTip(currentText());
}

/// As wide as its longest option.
QSize Chooser::sizeHint() const
{
    int widest = 0;
    for (const auto& option : options_) {
        const int badge = option.badge.isEmpty() ? 0 : iconSize().width() + badgeGap;
        widest = std::max(widest, fontMetrics().horizontalAdvance(option.text) + badge);
    }
    return {widest + aroundText, QComboBox::sizeHint().height()};
}

void Chooser::setBad(bool isBad)
{
    if (property("bad").toBool() == isBad)
        return;
    setProperty("bad", isBad);
    style()->unpolish(this);
    style()->polish(this);
}

void Chooser::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const auto room
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int badge = option.currentIcon.isNull() ? 0 : iconSize().width() + badgeGap;
    option.currentText
        = fontMetrics().elidedText(option.currentText, Qt::ElideRight, room.width() - badge);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    const auto ink = theme_.colour(isEnabled() ? &ThemeTokens::subdued : &ThemeTokens::edge);
    const int left
        = layoutDirection() == Qt::RightToLeft ? chevronRoom - chevronSize : width() - chevronRoom;
    painter.drawPixmap(QPoint(left, (height() - chevronSize) / 2),
        glyphPixmap(Glyph::chevronDown, ink, chevronSize, devicePixelRatioF()));
}

void Chooser::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void Chooser::fill(const std::vector<Option>& options)
{
    options_ = options;
    updateGeometry();
    clear();
    for (const auto& option : options_) {
        if (option.badge.isEmpty())
            addItem(option.text);
        else
            addItem(QIcon(new BadgeIconEngine(theme_, option.badge)), option.text);
    }
}

} // namespace brindlex
