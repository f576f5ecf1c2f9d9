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

} // namespace
} // namespace brindlex
