#include "shell/MenuBarMenu.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using MenuEntries = std::vector<StatusMenuEntry>;

TEST(MenuBarMenu, hasItsItemsInTheirOrderWithDividersBetween)
{
    EXPECT_EQ(menuBarMenu(StringCatalogue("en"), true),
        (MenuEntries{
            {1, "Check for Updates…"}, {}, {2, "Open Brindlex"}, {}, {3, "Quit Brindlex"}}));
}

TEST(MenuBarMenu, disablesTheCheckThatCannotBeMade)
{
    auto expected = menuBarMenu(StringCatalogue("en"), true);
    expected.front().isEnabled = false;

    EXPECT_EQ(menuBarMenu(StringCatalogue("en"), false), expected);
}

TEST(MenuBarMenu, isInTheLanguageOfTheTexts)
{
    EXPECT_EQ(menuBarMenu(StringCatalogue("zh-Hans"), true),
        (MenuEntries{{1, "检查更新…"}, {}, {2, "打开 Brindlex"}, {}, {3, "退出 Brindlex"}}));
}

} // namespace
} // namespace brindlex
