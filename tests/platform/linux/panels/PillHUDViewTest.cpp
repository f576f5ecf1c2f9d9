#include "platform/linux/panels/PillHUDView.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace brindlex {
namespace {

QSize sizeOf(const QString& label, int mostWidth = 1000)
{
    return PillHUDView(label, mostWidth).fittingSize();
}

QImage painted(const PillHUDView& view, PillHUDView::Fill fill)
{
    QImage surface(view.fittingSize(), QImage::Format_ARGB32);
    surface.fill(Qt::red);
    QPainter painter(&surface);
    view.paint(painter, fill);
    return surface;
}

/// The first and last column with a bright pixel.
std::pair<int, int> textColumns(const QImage& image)
{
    std::pair columns{image.width(), 0};
    for (int y = 4; y < image.height() - 4; ++y)
        for (int x = 4; x < image.width() - 4; ++x)
            if (qGreen(image.pixel(x, y)) > 200) {
                columns.first = std::min(columns.first, x);
                columns.second = std::max(columns.second, x);
            }
    return columns;
}

TEST(PillHUDView, isTheTextInTheSystemFontAtSize48WithItsPadding)
{
    auto font = QGuiApplication::font();
    font.setPixelSize(48);
    const QFontMetricsF metrics(font);
    const auto label = QStringLiteral("U.S.");

    EXPECT_NEAR(sizeOf(label).width(), metrics.horizontalAdvance(label) + 80, 1);
    EXPECT_NEAR(sizeOf(label).height(), metrics.height() + 48, 1);
}

TEST(PillHUDView, isBlackAtOpacity065WithTransparentCorners)
{
    const auto image = painted({QStringLiteral("U.S."), 1000}, PillHUDView::Fill::translucent);

    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    EXPECT_EQ(image.pixelColor(20, image.height() / 2), QColor(0, 0, 0, 166));
}

TEST(PillHUDView, hasCornersOfRadius20)
{
    const auto image = painted({QStringLiteral("U.S."), 1000}, PillHUDView::Fill::translucent);

    EXPECT_EQ(qAlpha(image.pixel(4, 4)), 0);
    EXPECT_EQ(qAlpha(image.pixel(7, 7)), 166);
    EXPECT_EQ(qAlpha(image.pixel(20, 0)), 166);
}

TEST(PillHUDView, isOpaqueWhereNothingShinesThrough)
{
    const auto image = painted({QStringLiteral("U.S."), 1000}, PillHUDView::Fill::opaque);

    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 255);
    EXPECT_EQ(image.pixelColor(20, image.height() / 2), QColor(44, 44, 46));
}

TEST(PillHUDView, hasItsTextInTheMiddleInBothDirections)
{
    for (const auto& label : {QStringLiteral("OHHO"), QStringLiteral("אהה"),
             QStringLiteral("wide line above\nH"), QStringLiteral("中文")}) {
        const auto image = painted({label, 1000}, PillHUDView::Fill::opaque);
        const auto [left, right] = textColumns(image);
        EXPECT_NEAR(left, image.width() - 1 - right, 8) << label.toStdString();
    }
}

TEST(PillHUDView, breaksLinesAtWordsAndAtLineEnds)
{
    const auto one = sizeOf(QStringLiteral("word"));
    const auto line = one.height() - 2 * PillHUDView::verticalPadding;

    EXPECT_NEAR(
        sizeOf(QStringLiteral("word word"), one.width() + 20).height(), one.height() + line, 1);
    EXPECT_NEAR(sizeOf(QStringLiteral("word\nword")).height(), one.height() + line, 1);
    EXPECT_NEAR(sizeOf(QStringLiteral("word\r\nword")).height(), one.height() + line, 1);
}

TEST(PillHUDView, hasAtMostThreeLines)
{
    const auto one = sizeOf(QStringLiteral("word"));
    const auto line = one.height() - 2 * PillHUDView::verticalPadding;
    for (const auto& label : {QStringLiteral("word ").repeated(100), QString(300, u'x'),
             QStringLiteral("a\nb\nc\nd\ne"), QStringLiteral("a ").repeated(200)}) {
        const auto size = sizeOf(label, 600);
        EXPECT_NEAR(size.height(), one.height() + 2 * line, 2) << label.toStdString();
        EXPECT_LE(size.width(), 600) << label.toStdString();
    }
}

TEST(PillHUDView, takesAnEmptyTextAndASpaceWithoutRoom)
{
    EXPECT_EQ(sizeOf(QString()).width(), 2 * PillHUDView::horizontalPadding);
    EXPECT_GT(sizeOf(QStringLiteral("U.S."), 0).height(), 0);
    EXPECT_GT(sizeOf(QStringLiteral("U.S."), -5).height(), 0);
}

} // namespace
} // namespace brindlex
