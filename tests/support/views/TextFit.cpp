#include "support/views/TextFit.h"

#include "ui/controls/TextLabel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>

namespace brindlex {
namespace {

/// What fonts round.
constexpr int tolerance = 1;

void judgeLabel(const QLabel& label, std::vector<std::string>& faults)
{
    if (label.text().isEmpty() || label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
        return;
    const auto room = label.contentsRect();
    const auto needed = label.fontMetrics().boundingRect(QRect(0, 0, room.width(), 100'000),
        label.wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine, label.text());
    if (needed.width() > room.width() + tolerance || needed.height() > room.height() + tolerance)
        faults.push_back("cut off: " + label.text().toStdString());
}

void judgeButton(const QAbstractButton& button, std::vector<std::string>& faults)
{
    if (!button.text().isEmpty()
        && button.fontMetrics().horizontalAdvance(button.text()) > button.width())
        faults.push_back("cut off: " + button.text().toStdString());
}

void judgeChooser(const QComboBox& chooser, std::vector<std::string>& faults)
{
    QStyleOptionComboBox option;
    option.initFrom(&chooser);
    const auto room = chooser.style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &chooser);
    const int icon
        = chooser.itemIcon(chooser.currentIndex()).isNull() ? 0 : chooser.iconSize().width() + 4;
    const int needed = chooser.fontMetrics().horizontalAdvance(chooser.currentText()) + icon;
    // One of a limited width may show its whole text in its tool tip.
    const bool isLimited = chooser.maximumWidth() < QWIDGETSIZE_MAX;
    if (needed > room.width() + tolerance
        && !(isLimited && chooser.toolTip() == chooser.currentText()))
        faults.push_back("cut off: " + chooser.currentText().toStdString());
}

void judgeTabs(const QTabBar& tabs, std::vector<std::string>& faults)
{
    if (tabs.tabRect(tabs.count() - 1).right() > tabs.width()
        || tabs.width() > tabs.window()->width())
        faults.push_back("tabs that do not fit");
}

/// What a layout has placed must not lie on top of one another.
void judgeSiblings(const QWidget& parent, std::vector<std::string>& faults)
{
    const auto* const layout = parent.layout();
    for (int one = 0; layout && one < layout->count(); ++one)
        for (int other = one + 1; other < layout->count(); ++other) {
            const auto* const first = layout->itemAt(one)->widget();
            const auto* const second = layout->itemAt(other)->widget();
            if (!first || !second || !first->isVisible() || !second->isVisible())
                continue;
            if (first->geometry().intersects(second->geometry()))
                faults.push_back("overlap in " + std::string(parent.metaObject()->className())
                    + ": " + first->accessibleName().toStdString() + " and "
                    + second->accessibleName().toStdString() + " at "
                    + std::to_string(first->geometry().right()) + " and "
                    + std::to_string(second->geometry().left()));
        }
}

} // namespace

std::vector<std::string> textFaults(const QWidget& window)
{
    std::vector<std::string> faults;
    for (const auto* const widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        judgeSiblings(*widget, faults);
        if (const auto* const label = dynamic_cast<const TextLabel*>(widget))
            judgeLabel(*label, faults);
        else if (const auto* const button = dynamic_cast<const QAbstractButton*>(widget))
            judgeButton(*button, faults);
        else if (const auto* const chooser = dynamic_cast<const QComboBox*>(widget))
            judgeChooser(*chooser, faults);
        else if (const auto* const tabs = dynamic_cast<const QTabBar*>(widget))
            judgeTabs(*tabs, faults);
    }
    return faults;
}

} // namespace brindlex
