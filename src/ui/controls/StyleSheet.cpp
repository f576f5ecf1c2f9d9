#include "ui/controls/StyleSheet.h"

#include "ui/controls/Theme.h"

#include <array>
#include <utility>

namespace brindlex {
namespace {

/// Colours stand as @name. A border of two pixels is the place of the focus ring.
constexpr auto sheet = R"(
* { outline: none; }
QWidget#window, QWidget#page { background: @window@; }
QFrame#bar { background: @bar@; border: none; border-bottom: 1px solid @line@; }
QFrame#foot { background: @bar@; border: none; border-top: 1px solid @line@; }
QLabel { background: transparent; }
QToolTip { background: @card@; color: @text@; border: 1px solid @line@; padding: 4px 6px; }

QLineEdit {
    background: @card@; border: 1px solid @edge@; border-radius: 6px; padding: 1px 7px;
    min-height: 24px; color: @text@;
    selection-background-color: @accent@; selection-color: white;
}
QLineEdit:focus { border: 2px solid @accentText@; padding: 0 6px; }

QPlainTextEdit {
    background: @card@; border: 1px solid @line@; border-radius: 8px; padding: 5px 5px 5px 9px;
    color: @text@; selection-background-color: @accent@; selection-color: white;
}
QPlainTextEdit:focus { border: 2px solid @accentText@; padding: 4px 4px 4px 8px; }

QComboBox, QPushButton {
    background: @soft@; border: 2px solid transparent; border-radius: 6px; color: @text@;
    min-height: 24px;
}
QComboBox { padding: 0 2px 0 8px; }
QPushButton { padding: 0 12px; }
QComboBox:hover, QPushButton:hover { background: @line@; }
QComboBox[bad=true] { color: @warning@; }
QComboBox:disabled, QPushButton:disabled { color: @subdued@; }
QComboBox:focus, QPushButton:focus, QToolButton:focus { border-color: @accentText@; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox::down-arrow { image: none; width: 12px; height: 12px; }
QComboBox QAbstractItemView {
    background: @card@; color: @text@; border: 1px solid @line@; padding: 4px;
    selection-background-color: @select@; selection-color: @text@;
}
QComboBox QAbstractItemView::item { min-height: 28px; }
QPushButton:default { background: @accent@; color: white; }
QPushButton:default:focus { border-color: @text@; }
QPushButton:checked { background: @select@; color: @accentText@; }
QPushButton[role=danger] { color: @danger@; }
QPushButton[role=danger]:disabled { color: @subdued@; }
QPushButton[role=link] { color: @accentText@; background: transparent; padding: 0 4px; }
QPushButton[role=add] {
    background: transparent; color: @accentText@; text-align: left; padding: 0 14px;
    min-height: 40px; border-radius: 9px;
}
QPushButton[role=add]:hover { background: @hover@; }
QPushButton[role=segment] {
    border-radius: 6px; min-height: 20px; padding: 0 10px; background: transparent;
    color: @subdued@;
}
QPushButton[role=segment]:checked { background: @card@; color: @text@; font-weight: 600; }
QFrame#segments { background: @soft@; border-radius: 8px; }

QToolButton {
    border: 2px solid transparent; border-radius: 6px; background: transparent; color: @text@;
    padding: 2px;
}
QToolButton:hover { background: @soft@; }
QToolButton#chooser { background: @soft@; padding: 2px 8px; min-height: 20px; }
QToolButton#chooser:hover { background: @line@; }
QToolButton::menu-indicator { image: none; }
QToolButton:checked { background: @select@; }

QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: @track@; }
QSlider::sub-page:horizontal { background: @accent@; border-radius: 2px; }
QSlider::handle:horizontal {
    width: 16px; height: 16px; margin: -7px 0; border-radius: 9px; background: white;
    border: 1px solid @edge@;
}
QSlider::handle:horizontal:focus { border: 2px solid @accentText@; width: 14px; height: 14px; }

QScrollBar:vertical { background: transparent; width: 8px; margin: 2px; }
QScrollBar::handle:vertical { background: @edge@; border-radius: 2px; min-height: 32px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }

QTableView, QListView { background: transparent; border: none; gridline-color: transparent; }
QTableView#ground, QListView#ground { background: @card@; }
QListView#suggestions { background: @card@; border: 1px solid @edge@; border-radius: 8px; }
QHeaderView { background: transparent; }
QHeaderView::section {
    background: transparent; border: none; border-bottom: 1px solid @line@; color: @subdued@;
    padding: 0 6px;
}
QHeaderView::section:first { padding-left: 16px; }

QMenu { background: @card@; color: @text@; border: 1px solid @line@; padding: 4px; }
QMenu::item { padding: 5px 20px 5px 12px; border-radius: 4px; }
QMenu::separator { height: 1px; background: @line@; margin: 4px 0; }
QMenu::item:selected { background: @select@; color: @text@; }
)";

constexpr auto names = std::to_array<std::pair<const char*, Token>>({
    {"window", &ThemeTokens::window},
    {"card", &ThemeTokens::card},
    {"bar", &ThemeTokens::bar},
    {"soft", &ThemeTokens::soft},
    {"hover", &ThemeTokens::hover},
    {"select", &ThemeTokens::select},
    {"line", &ThemeTokens::line},
    {"edge", &ThemeTokens::edge},
    {"track", &ThemeTokens::track},
    {"accent", &ThemeTokens::accent},
    {"text", &ThemeTokens::text},
    {"subdued", &ThemeTokens::subdued},
    {"accentText", &ThemeTokens::accentText},
    {"warning", &ThemeTokens::warning},
    {"danger", &ThemeTokens::danger},
});

} // namespace

QString styleSheet(const Theme& theme)
{
    QString text = QString::fromLatin1(sheet);
    for (const auto& [name, token] : names)
        text.replace(QStringLiteral("@%1@").arg(QLatin1String(name)), theme.colour(token).name());
    return text;
}

} // namespace brindlex
