#include "ui/controls/TabStrip.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(TabStrip, keepsItsTabsInPlaceWhicheverIsSelected)
{
    const Theme theme;
    TabStrip tabs(theme);
    for (const auto* name : {"General", "A tab with a long name", "About"})
        tabs.addTab(Glyph::general, name);
    tabs.resize(tabs.sizeHint());
    const auto places = [&] {
        return std::vector{tabs.tabRect(0), tabs.tabRect(1), tabs.tabRect(2)};
    };

    const auto before = places();
    tabs.setCurrentIndex(1);

    EXPECT_EQ(places(), before);
    EXPECT_GE(before[0].width(), 72);
    EXPECT_GE(tabs.height(), 71);
}

TEST(TabStrip, keepsTheWordOfTheSelectedTabWhereThereIsNoRoomForAll)
{
    const Theme theme;
    TabStrip tabs(theme);
    for (const auto* name : {"A tab with a long name", "Another with a long name", "About"})
        tabs.addTab(Glyph::general, name);
    tabs.resize(tabs.sizeHint());
    tabs.show();
    const int selectedWidth = tabs.tabRect(1).width();
    EXPECT_EQ(tabs.tabToolTip(0), "");

    tabs.setCurrentIndex(1);
    tabs.resize(tabs.minimumSizeHint());

    EXPECT_EQ(tabs.tabRect(1).width(), selectedWidth);
    EXPECT_LT(tabs.tabRect(0).width(), selectedWidth / 2);
    EXPECT_LE(tabs.tabRect(2).right(), tabs.width());
    EXPECT_EQ(tabs.tabToolTip(0), "A tab with a long name");
}

} // namespace
} // namespace brindlex
