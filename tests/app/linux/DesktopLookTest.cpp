#include "app/linux/DesktopLook.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

QFont usualFont() { return {QStringLiteral("Usual"), 9}; }

TEST(lookFor, isThatOfTheDesktop)
{
    EXPECT_EQ(lookFor({}), Theme::Look{});
    EXPECT_EQ(lookFor({.isDark = true, .accent = 0x3366ff, .reducesMotion = true}),
        (Theme::Look{themeTokens(Brightness::dark, Colour::fromHex(0x3366ff)), true}));
}

TEST(fontFor, isThatOfTheDesktopInItsScale)
{
    QFont expected(QStringLiteral("Noto Sans"));
    expected.setPointSizeF(12.6);
    expected.setWeight(QFont::Bold);
    expected.setItalic(true);
    EXPECT_EQ(
        fontFor({.font = {"Noto Sans", 10.5, 700, true}, .textScale = 1.2}, usualFont()), expected);
}

TEST(fontFor, isTheUsualOneInWhatTheDesktopDoesNotSay)
{
    EXPECT_EQ(fontFor({}, usualFont()), usualFont());
    EXPECT_EQ(fontFor({.textScale = 2}, usualFont()), QFont(QStringLiteral("Usual"), 18));
    EXPECT_EQ(fontFor({.font = {"Sans"}}, usualFont()), QFont(QStringLiteral("Sans Serif"), 9));
}

TEST(fontFor, isNoLargerOrSmallerThanWindowsAreMadeFor)
{
    EXPECT_EQ(fontFor({.font = {"A", 32}, .textScale = 3}, usualFont()).pointSizeF(), 32);
    EXPECT_EQ(fontFor({.font = {"A", 6}, .textScale = 0.5}, usualFont()).pointSizeF(), 6);
}

TEST(openingSize, growsWithTheWordsAsFarAsTheScreenGoes)
{
    constexpr QSize screen(2000, 1000);
    const auto usual = QApplication::font();
    QApplication::setFont(QFont(usual.family(), 20));
    EXPECT_EQ(openingSize({600, 400}, screen), QSize(1200, 800));
    EXPECT_EQ(openingSize({950, 500}, screen), QSize(1800, 900));
    EXPECT_EQ(openingSize({600, 400}, QSize(640, 480)), QSize(600, 432));
    QApplication::setFont(QFont(usual.family(), 9));
    EXPECT_EQ(openingSize({600, 400}, screen), QSize(600, 400));
    QApplication::setFont(usual);
}

} // namespace
} // namespace brindlex
