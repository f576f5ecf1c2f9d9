#pragma once

#include "platform/linux/panels/OpenWindow.h"
#include "platform/linux/panels/WindowChoice.h"

#include <QFont>
#include <QRect>
#include <QSize>
#include <optional>
#include <vector>

class QPainter;

namespace brindlex {

/// A list of windows on a dark rectangle, one row each, in logical pixels: the title, and the
/// application at the end of the row. What has no room ends in "…".
///
/// Dark with an edge on every desktop, so that it is read over a bright and over a dark one. Needs
/// the Qt application; main thread only.
class WindowChooserView {
public:
    static constexpr int rowHeight = 44;
    static constexpr int padding = 10;
    static constexpr int cornerRadius = 16;
    static constexpr int mostWidth = 680;

    /// For a screen of this size.
    WindowChooserView(std::vector<WindowLabel> labels, const QSize& screen);

    /// How many rows have room on the screen; all of them, if they have.
    std::size_t seen() const { return seen_; }
    QSize size() const;

    /// The row at a point of the view, if it shows one there.
    std::optional<std::size_t> rowAt(const QPointF& point, const WindowChoice& choice) const;

    void paint(QPainter& painter, const WindowChoice& choice) const;

private:
    QRectF areaOf(std::size_t row, const WindowChoice& choice) const;
    void paintRow(QPainter& painter, std::size_t row, const WindowChoice& choice) const;
    void paintPosition(QPainter& painter, const WindowChoice& choice) const;

    std::vector<WindowLabel> labels_;
    std::size_t seen_;
    int width_;
};

} // namespace brindlex
