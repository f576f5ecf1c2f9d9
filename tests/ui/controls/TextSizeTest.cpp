#include "ui/controls/TextSize.h"

#include "support/views/ScopedFont.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// A program whose words have this size in points.
class FontOf : public ScopedFont {
public:
    explicit FontOf(double points) : ScopedFont(points / QApplication::font().pointSizeF()) { }
};

TEST(grownWithText, isLongerByAsMuchAsWordsAreLarger)
{
    {
        const FontOf twice(20);
        EXPECT_EQ(grownWithText(7), 14);
        EXPECT_EQ(grownWithText(QSize(30, 50)), QSize(60, 100));
    }
    const FontOf designed(10);
    EXPECT_EQ(grownWithText(7), 7);
}

TEST(grownWithText, isNeverShorter)
{
    const FontOf small(6);
    EXPECT_EQ(grownWithText(7), 7);
}

TEST(followTextSize, appliesAtOnceAndWithEachFont)
{
    QWidget widget;
    followTextSize(widget, [&] { widget.setFixedWidth(grownWithText(50)); });
    EXPECT_EQ(widget.width(), 50);
    {
        const FontOf twice(20);
        QApplication::processEvents();
        EXPECT_EQ(widget.width(), 100);
    }
    QApplication::processEvents();
    EXPECT_EQ(widget.width(), 50);
}

} // namespace
} // namespace brindlex
