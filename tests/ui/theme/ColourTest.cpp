#include "ui/theme/Colour.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr Colour black{};

TEST(Colour, isWrittenAsOnTheWeb)
{
    EXPECT_EQ(hexText(Colour::fromHex(0x2a66dd)), "#2a66dd");
    EXPECT_EQ(hexText(black), "#000000");
    EXPECT_EQ(Colour::fromHex(0x2a66dd), (Colour{0x2a, 0x66, 0xdd}));
}

TEST(Colour, hasAContrastWithAnother)
{
    EXPECT_DOUBLE_EQ(contrast(white, black), 21);
    EXPECT_DOUBLE_EQ(contrast(black, white), 21);
    EXPECT_DOUBLE_EQ(contrast(white, white), 1);
    EXPECT_NEAR(contrast(Colour::fromHex(0x767676), white), 4.54, 0.005);
    EXPECT_NEAR(contrast(Colour::fromHex(0x4c8dff), white), 3.2, 0.05);
}

TEST(Colour, keepsHueAndSaturationWithAnotherLightness)
{
    EXPECT_EQ(withLightness(Colour::fromHex(0xff0000), 0.25), Colour::fromHex(0x800000));
    EXPECT_EQ(withLightness(Colour::fromHex(0x800000), 0.5), Colour::fromHex(0xff0000));
    EXPECT_EQ(withLightness(Colour::fromHex(0x336699), lightnessOf(Colour::fromHex(0x336699))),
        Colour::fromHex(0x336699));
    EXPECT_EQ(withLightness(Colour::fromHex(0x336699), 1), white);
    EXPECT_EQ(withLightness(Colour::fromHex(0x336699), 0), black);
    EXPECT_EQ(withLightness(black, 0.5), Colour::fromHex(0x808080));
    EXPECT_EQ(withLightness(white, 0.5), Colour::fromHex(0x808080));
}

} // namespace
} // namespace brindlex
