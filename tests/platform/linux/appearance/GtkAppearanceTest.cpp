#include "platform/linux/appearance/GtkAppearance.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(isDarkTheme, goesByAPartOfTheName)
{
    for (const auto* name : {"Adwaita-dark", "Arc-Dark", "Adwaita:dark", "Mint-Y-Dark-Aqua",
             "Breeze Dark", "Materia_DARK", "dark", "HighContrastInverse"})
        EXPECT_TRUE(isDarkTheme(name)) << name;
    for (const auto* name : {"", "Adwaita", "Arc-Darker", "Darkness", "Greybird", "-dar", "bedark",
             "HighContrast", "\xFF\xFE"})
        EXPECT_FALSE(isDarkTheme(name)) << name;
}

TEST(gtkAppearance, isThatOfThemeFontAndAnimations)
{
    EXPECT_EQ(gtkAppearance({}), StatedAppearance{});
    EXPECT_EQ(gtkAppearance({{"Net/ThemeName", "Arc-Dark"}, {"Gtk/FontName", "Noto Sans 10"},
                  {"Gtk/EnableAnimations", 0}}),
        (StatedAppearance{
            .isDark = true, .reducesMotion = true, .font = DesktopFont{"Noto Sans", 10}}));
    EXPECT_EQ(gtkAppearance({{"Net/ThemeName", "Arc"}, {"Gtk/EnableAnimations", 1}}),
        (StatedAppearance{.isDark = false, .reducesMotion = false}));
    EXPECT_EQ(gtkAppearance({{"Net/ThemeName", "Arc"}, {"Gtk/ApplicationPreferDarkTheme", 1}}),
        (StatedAppearance{.isDark = true}));
}

TEST(gtkAppearance, knowsBothNamesOfTheAnimations)
{
    EXPECT_EQ(
        gtkAppearance({{"Net/EnableAnimations", 0}}), (StatedAppearance{.reducesMotion = true}));
    EXPECT_EQ(gtkAppearance({{"Net/EnableAnimations", 0}, {"Gtk/EnableAnimations", 1}}),
        (StatedAppearance{.reducesMotion = false}));
}

TEST(gtkAppearance, leavesNoScaleToTheTextThatTheDotsPerInchHave)
{
    EXPECT_EQ(gtkAppearance({{"Xft/DPI", 196'608}}), (StatedAppearance{.textScale = 1}));
}

TEST(gtkAppearance, isNotWhatHasAnotherType)
{
    EXPECT_EQ(gtkAppearance({{"Net/ThemeName", 1}, {"Gtk/FontName", 1}, {"Xft/DPI", "96"},
                  {"Gtk/EnableAnimations", "0"}}),
        StatedAppearance{});
}

TEST(gtkFileAppearance, isThatOfItsSettings)
{
    EXPECT_EQ(gtkFileAppearance("[Settings]\n"
                                "gtk-theme-name=Adwaita-dark\n"
                                "gtk-font-name = Cantarell Bold 11\n"
                                "gtk-enable-animations=false\n"),
        (StatedAppearance{
            .isDark = true, .reducesMotion = true, .font = DesktopFont{"Cantarell", 11, 700}}));
    EXPECT_EQ(gtkFileAppearance("[Settings]\ngtk-application-prefer-dark-theme=1\n"
                                "gtk-theme-name=Adwaita\ngtk-enable-animations=TRUE\n"),
        (StatedAppearance{.isDark = true, .reducesMotion = false}));
    EXPECT_EQ(gtkFileAppearance("[Settings]\ngtk-application-prefer-dark-theme=0\n"),
        (StatedAppearance{.isDark = false}));
}

TEST(gtkFileAppearance, isNothingForGarbage)
{
    for (const auto* text : {"", "[Settings]\n", "gtk-theme-name=Adwaita-dark\n",
             "[Other]\ngtk-theme-name=Adwaita-dark\n",
             "[Settings]\ngtk-application-prefer-dark-theme=perhaps\ngtk-font-name=\n",
             "[Settings]\ngtk-font-name=\xFF\xFE,\ngtk-enable-animations=\n#gtk-theme-name=a-dark"})
        EXPECT_EQ(gtkFileAppearance(text).isDark, std::nullopt) << text;
    EXPECT_EQ(gtkFileAppearance("[Settings]\ngtk-font-name=\ngtk-enable-animations=2\n"),
        StatedAppearance{});
}

} // namespace
} // namespace brindlex
