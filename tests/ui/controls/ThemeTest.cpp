#include "ui/controls/Theme.h"

#include "ui/controls/Glyph.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(Theme, dressesAWindowNowAndWheneverItChanges)
{
    Theme theme;
    QWidget window;
    window.setObjectName("window");
    window.resize(20, 20);
    theme.dress(window);
    const auto ground = [&] { return window.grab().toImage().pixelColor(10, 10); };
    EXPECT_EQ(ground(), theme.colour(&ThemeTokens::window));

    theme.setLook({.tokens = themeTokens(Brightness::dark)});

    EXPECT_EQ(ground(), QColor(0x1e, 0x1f, 0x22));
}

TEST(Theme, outlivesTheWindowsThatItHasDressed)
{
    Theme theme;
    {
        QWidget window;
        theme.dress(window);
    }

    theme.setLook({.tokens = themeTokens(Brightness::dark)});
}

TEST(Theme, changesTheColourOfGlyphsThatAreThere)
{
    Theme theme;
    const auto icon = glyphIcon(theme, Glyph::add, &ThemeTokens::text);
    const auto middle = [&] { return icon.pixmap(24).toImage().pixelColor(12, 12); };
    EXPECT_EQ(middle(), theme.colour(&ThemeTokens::text));

    theme.setLook({.tokens = themeTokens(Brightness::dark)});

    EXPECT_EQ(middle(), QColor(0xf1, 0xf1, 0xf3));
}

} // namespace
} // namespace brindlex
