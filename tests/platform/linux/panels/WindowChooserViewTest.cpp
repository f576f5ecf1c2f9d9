#include "platform/linux/panels/WindowChooserView.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr QSize screen(1280, 800);
constexpr int rowHeight = WindowChooserView::rowHeight;
constexpr int padding = WindowChooserView::padding;

std::vector<WindowLabel> labels(std::size_t count)
{
    return std::vector<WindowLabel>(count, {"Title", "Editor"});
}

QImage painted(const WindowChooserView& view, const WindowChoice& choice)
{
    QImage surface(view.size(), QImage::Format_RGB32);
    QPainter painter(&surface);
    view.paint(painter, choice);
    return surface;
}

/// The last column of the first row, before the application, with a bright pixel.
int endOfTitle(const QImage& image, int before)
{
    for (int x = before; x > 0; --x)
        for (int y = padding; y < padding + rowHeight; ++y)
            if (qRed(image.pixel(x, y)) > 200)
                return x;
    return 0;
}

TEST(WindowChooserView, hasARowForEachWindow)
{
    EXPECT_EQ(WindowChooserView(labels(3), screen).size(),
        QSize(WindowChooserView::mostWidth, 3 * rowHeight + 2 * padding));
}

TEST(WindowChooserView, staysOnTheScreen)
{
    const WindowChooserView view(labels(200), screen);
    EXPECT_EQ(view.seen(), 14U);
    EXPECT_EQ(view.size().height(), 14 * rowHeight + 2 * padding);

    EXPECT_EQ(WindowChooserView(labels(200), {400, 800}).size().width(), 320);
    EXPECT_EQ(WindowChooserView(labels(200), {10, 10}).seen(), 1U);
}

TEST(WindowChooserView, knowsTheRowAtAPoint)
{
    const WindowChooserView view(labels(200), screen);
    WindowChoice choice(200, view.seen(), 0);
    choice.scroll(5);

    EXPECT_EQ(view.rowAt({100, padding + 1.0}, choice), 5U);
    EXPECT_EQ(view.rowAt({100, padding + rowHeight + 1.0}, choice), 6U);
    EXPECT_EQ(view.rowAt({100, padding - 1.0}, choice), std::nullopt);
    EXPECT_EQ(view.rowAt({100, double(view.size().height())}, choice), std::nullopt);
    EXPECT_EQ(view.rowAt({-50, padding + 1.0}, choice), std::nullopt);
}

TEST(WindowChooserView, marksTheChosenRowAlone)
{
    const WindowChooserView view(labels(3), screen);
    const auto image = painted(view, WindowChoice(3, 3, 1));

    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(image.pixelColor(view.size().width() / 2, padding + row * rowHeight + 4),
            row == 1 ? QColor(10, 100, 220) : QColor(44, 44, 46))
            << row;
}

TEST(WindowChooserView, endsALongTitleBeforeTheApplication)
{
    const WindowChooserView view({{std::string(10'000, 'W'), "Editor"}, {"b", ""}}, screen);
    const auto image = painted(view, WindowChoice(2, 2, 1));

    EXPECT_GT(endOfTitle(image, 560), 400);
    EXPECT_LT(endOfTitle(image, 640), 600);
}

TEST(WindowChooserView, showsWhereItIsInALongList)
{
    const WindowChooserView view(labels(200), screen);
    WindowChoice choice(200, view.seen(), 0);
    const auto barAt = [&](int y) {
        return painted(view, choice).pixelColor(view.size().width() - 6, y).red() > 120;
    };
    const int bottom = view.size().height() - WindowChooserView::cornerRadius - 4;

    EXPECT_TRUE(barAt(WindowChooserView::cornerRadius + 4));
    EXPECT_FALSE(barAt(bottom));
    choice.toLast();
    EXPECT_FALSE(barAt(WindowChooserView::cornerRadius + 4));
    EXPECT_TRUE(barAt(bottom));
}

} // namespace
} // namespace brindlex
