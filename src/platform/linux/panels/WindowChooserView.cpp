#include "platform/linux/panels/WindowChooserView.h"

#include <QColor>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

/// Leaves a part of the screen around a long list.
constexpr double mostShareForList = 0.8;
constexpr double mostShareOfApplication = 0.35;
constexpr int titleSize = 16;
constexpr int applicationSize = 13;
constexpr int rowPadding = 16;
constexpr int gap = 20;
constexpr int rowRadius = 8;
constexpr int barWidth = 4;
constexpr int leastBarHeight = 24;

const QColor ground(44, 44, 46);
const QColor edge(92, 92, 96);
const QColor chosenGround(10, 100, 220);
const QColor titleColor(255, 255, 255);
const QColor applicationColor(174, 174, 180);
const QColor chosenApplicationColor(214, 230, 255);
const QColor barColor(140, 140, 146);

QFont systemFont(int pixels)
{
    auto font = QGuiApplication::font();
    font.setPixelSize(pixels);
    return font;
}

/// Draws the text into its area, on one line, and returns the width that it took.
double drawElided(QPainter& painter, const QRectF& area, Qt::AlignmentFlag side, const QFont& font,
    const std::string& text)
{
    const QFontMetricsF metrics(font);
    const auto shown
        = metrics.elidedText(QString::fromStdString(text), Qt::ElideRight, area.width());
    painter.setFont(font);
    // Titles of all scripts begin at the same side, as the columns do.
    const auto place = Qt::Alignment(side) | Qt::AlignAbsolute | Qt::AlignVCenter;
    painter.drawText(area, static_cast<int>(place.toInt()) | Qt::TextSingleLine, shown);
    return std::min(metrics.horizontalAdvance(shown), area.width());
}

} // namespace

WindowChooserView::WindowChooserView(std::vector<WindowLabel> labels, const QSize& screen)
    : labels_(std::move(labels)),
      width_(std::min(mostWidth, static_cast<int>(screen.width() * mostShareForList)))
{
    const auto room = static_cast<int>(screen.height() * mostShareForList) - 2 * padding;
    const auto rows = static_cast<std::size_t>(std::max(room / rowHeight, 1));
    seen_ = std::min(rows, labels_.size());
}

QSize WindowChooserView::size() const
{
    return {width_, static_cast<int>(seen_) * rowHeight + 2 * padding};
}

QRectF WindowChooserView::areaOf(std::size_t row, const WindowChoice& choice) const
{
    const auto place = static_cast<double>(row - choice.first());
    return {double{padding}, padding + place * rowHeight, double(width_) - 2 * padding,
        double{rowHeight}};
}

std::optional<std::size_t> WindowChooserView::rowAt(
    const QPointF& point, const WindowChoice& choice) const
{
    for (auto row = choice.first(); row < choice.first() + seen_; ++row)
        if (areaOf(row, choice).contains(point))
            return row;
    return {};
}

void WindowChooserView::paint(QPainter& painter, const WindowChoice& choice) const
{
    const QRectF area({0, 0}, QSizeF(size()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(area, ground);
    painter.setPen(QPen(edge, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), cornerRadius - 1, cornerRadius - 1);
    for (auto row = choice.first(); row < choice.first() + seen_; ++row)
        paintRow(painter, row, choice);
    if (seen_ < labels_.size())
        paintPosition(painter, choice);
}

void WindowChooserView::paintRow(
    QPainter& painter, std::size_t row, const WindowChoice& choice) const
{
    const auto area = areaOf(row, choice);
    const bool isChosen = row == choice.chosen();
    painter.save();
    // Marks heaped upon a letter stay in their own row.
    painter.setClipRect(area);
    if (isChosen) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(chosenGround);
        painter.drawRoundedRect(area.adjusted(0, 1, 0, -1), rowRadius, rowRadius);
    }
    auto text = area.adjusted(rowPadding, 0, -rowPadding, 0);
    const auto& label = labels_[row];
    if (!label.application.empty()) {
        auto end = text;
        end.setLeft(text.right() - text.width() * mostShareOfApplication);
        painter.setPen(isChosen ? chosenApplicationColor : applicationColor);
        const auto width = drawElided(
            painter, end, Qt::AlignRight, systemFont(applicationSize), label.application);
        text.setRight(text.right() - width - gap);
    }
    painter.setPen(titleColor);
    drawElided(painter, text, Qt::AlignLeft, systemFont(titleSize), label.title);
    painter.restore();
}

void WindowChooserView::paintPosition(QPainter& painter, const WindowChoice& choice) const
{
    const double track = size().height() - 2.0 * cornerRadius;
    const auto height = std::max<double>(
        leastBarHeight, track * static_cast<double>(seen_) / static_cast<double>(choice.rows()));
    const auto hidden = static_cast<double>(choice.rows() - seen_);
    const auto top = cornerRadius + (track - height) * static_cast<double>(choice.first()) / hidden;
    painter.setPen(Qt::NoPen);
    painter.setBrush(barColor);
    painter.drawRoundedRect(
        QRectF(width_ - padding + 2.0, top, barWidth, height), barWidth / 2.0, barWidth / 2.0);
}

} // namespace brindlex
