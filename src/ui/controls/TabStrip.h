#pragma once

#include "ui/controls/Glyph.h"
#include "ui/controls/Theme.h"

#include <QTabBar>

namespace brindlex {

/// The tabs at the top of a window: a glyph over a word each, in the middle. Where there is no room
/// for all words, the selected tab has its word alone, and the others have theirs in a tool tip.
/// The theme outlives it.
class TabStrip : public QTabBar {
public:
    explicit TabStrip(const Theme& theme, QWidget* parent = nullptr);

    void addTab(Glyph glyph, const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QFont fontOf(bool isSelected) const;
    bool hasRoomForWords() const { return width() >= sizeHint().width(); }
    void paintTab(QPainter& painter, int index);

    const Theme& theme_;
    std::vector<Glyph> glyphs_;
    /// Whether the user moves by the keyboard, and has to see where.
    bool showsRing_ = false;
};

} // namespace brindlex
