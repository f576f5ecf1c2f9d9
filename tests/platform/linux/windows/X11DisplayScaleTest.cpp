#include "platform/linux/windows/X11DisplayScale.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

TEST(scaleOf, isThatOfTheDotsPerInch)
{
    EXPECT_EQ(scaleOf("Xft.dpi:\t192\n"), 2);
    EXPECT_EQ(scaleOf("Xft.antialias: 1\nXft.dpi: 120\nXcursor.size: 24\n"), 1.25);
    EXPECT_EQ(scaleOf("Xft.dpi:96"), 1);
    EXPECT_EQ(scaleOf("Xft.dpi:768"), 8);
}

TEST(scaleOf, isOneForWhatIsNoScale)
{
    for (const auto* resources : {"", "Xft.dpi", "Xft.dpi:", "Xft.dpi:\tlarge", "Xft.dpi: 192 dots",
             "Xft.dpi: 75", "Xft.dpi: 0", "Xft.dpi: -192", "Xft.dpi: nan", "Xft.dpi: inf",
             "Xft.dpi: 769", "Xft.dpi: 1e300", "myXft.dpi: 192", "Xft.dpi.x: 192", "\xFF\xFE"})
        EXPECT_EQ(scaleOf(resources), 1) << resources;
    EXPECT_EQ(scaleOf(std::string("Xft.dpi:\0 192", 13)), 1);
}

} // namespace
} // namespace brindlex
