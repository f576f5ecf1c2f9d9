#pragma once

#include <QFont>
#include <QSize>
#include <QString>
#include <QTextLayout>

class QPainter;

namespace brindlex {

/// A text on a rounded dark rectangle, in logical pixels.
///
/// Lines are broken at words where the text is wider than the space; what does not fit into three
/// lines ends in "…". Needs the Qt application; main thread only.
class PillHUDView {
public:
    static constexpr int fontSize = 48;
    static constexpr int horizontalPadding = 40;
    static constexpr int verticalPadding = 24;
    static constexpr int cornerRadius = 20;
    static constexpr double opacity = 0.65;
    static constexpr int mostLines = 3;

    /// How the rectangle is filled: black through which the screen shines, or, where nothing can,
    /// a dark grey of about the same effect.
    enum class Fill { translucent, opaque };

    /// Lays out the label for a view that is at most as wide as given.
    PillHUDView(const QString& label, int mostWidth);

    const QString& label() const { return label_; }

    /// The size of the rectangle that holds the text and the padding.
    QSize fittingSize() const;

    /// Paints over a surface of the fitting size, whose earlier content does not matter.
    void paint(QPainter& painter, Fill fill) const;

private:
    void layOut(int mostTextWidth);

    QString label_;
    QTextLayout layout_;
    QSizeF textSize_;
};

} // namespace brindlex
