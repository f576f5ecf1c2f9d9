#include "platform/linux/tray/TrayPicture.h"

#include "platform/linux/tray/IconPictures.h"
#include "platform/linux/tray/NotifierValues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

/// The contrast of two colours as the guidelines for accessible texts count it, from 1 to 21.
double contrast(QColor one, QColor other)
{
    const auto luminance = [](QColor colour) {
        const auto linear = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
            + 0.0722 * linear(colour.blueF());
    };
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

TEST(TrayPicture, isDrawnInTheSizesOfPanelsAndWindows)
{
    std::vector<int> sizes;
    for (const auto& picture : iconPictures())
        sizes.push_back(picture.size);

    EXPECT_EQ(sizes, (std::vector{16, 22, 24, 32, 44, 48, 64, 128}));
}

TEST(TrayPicture, hasTheSizeThatIsWanted)
{
    for (const auto size : {1, 15, 16, 20, 24, 30, 64, 100})
        EXPECT_EQ(trayPicture(size).size(), QSize(size, size));
}

TEST(TrayPicture, leavesItsCornersFree)
{
    for (const auto size : {16, 20, 24, 64}) {
        const auto picture = trayPicture(size);
        EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << size;
        EXPECT_EQ(qAlpha(picture.pixel(size / 2, size / 2)), 255) << size;
    }
}

/// What panels are made of need not be known: the mark stands on a ground of its own.
TEST(TrayPicture, hasAMarkThatIsLegibleOnAnyPanel)
{
    for (const auto size : {16, 22, 24, 32, 48}) {
        const auto picture = trayPicture(size);
        QColor lightest = Qt::black;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                if (const auto colour = picture.pixelColor(x, y);
                    colour.alpha() == 255 && colour.lightness() > lightest.lightness())
                    lightest = colour;
        const auto ground = picture.pixelColor(size / 4, size / 2);
        EXPECT_EQ(ground.alpha(), 255) << size;
        EXPECT_GE(contrast(lightest, ground), 3.0) << size;
    }
}

TEST(TrayPicture, goesToHostsAsAlphaRedGreenBlue)
{
    constexpr std::array<std::uint32_t, 4> pixels{0x01020304, 0xFFEEDDCC, 0, 0x80706050};

    const auto picture = notifierPicture({2, pixels.data()});

    EXPECT_EQ(picture.width, 2);
    EXPECT_EQ(picture.height, 2);
    EXPECT_EQ(picture.bytes.toHex(), "01020304ffeeddcc0000000080706050");
}

} // namespace
} // namespace brindlex
