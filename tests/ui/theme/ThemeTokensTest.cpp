#include "ui/theme/ThemeTokens.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace brindlex {
namespace {

std::vector<Colour> groundsOf(const ThemeTokens& theme)
{
    return {theme.window, theme.card, theme.bar, theme.soft, theme.hover, theme.select};
}

double lowestContrast(Colour ink, const std::vector<Colour>& grounds)
{
    double lowest = 21;
    for (const auto ground : grounds)
        lowest = std::min(lowest, contrast(ink, ground));
    return lowest;
}

struct Contrasts {
    Brightness brightness;
    double text, subdued, accentText, warning, success, danger, whiteOnAccent, edge, accentOnCard;
};

TEST(ThemeTokens, haveTheContrastsThatTheyWereChosenFor)
{
    const Contrasts rows[]{
        {Brightness::light, 13.9, 5.4, 5.0, 5.2, 5.0, 5.1, 5.2, 3.0, 5.2},
        {Brightness::dark, 9.5, 5.0, 5.1, 6.1, 5.8, 5.2, 4.6, 3.1, 3.1},
    };
    constexpr double rounding = 0.051;
    for (const auto& row : rows) {
        const auto theme = themeTokens(row.brightness);
        const auto grounds = groundsOf(theme);
        EXPECT_NEAR(lowestContrast(theme.text, grounds), row.text, rounding);
        EXPECT_NEAR(lowestContrast(theme.subdued, grounds), row.subdued, rounding);
        EXPECT_NEAR(lowestContrast(theme.accentText, grounds), row.accentText, rounding);
        EXPECT_NEAR(lowestContrast(theme.warning, grounds), row.warning, rounding);
        EXPECT_NEAR(lowestContrast(theme.success, grounds), row.success, rounding);
        EXPECT_NEAR(lowestContrast(theme.danger, grounds), row.danger, rounding);
        EXPECT_NEAR(contrast(white, theme.accent), row.whiteOnAccent, rounding);
        EXPECT_NEAR(lowestContrast(theme.edge, {theme.window, theme.card, theme.hover}), row.edge,
            rounding);
        EXPECT_NEAR(contrast(theme.accent, theme.card), row.accentOnCard, rounding);
    }
}

TEST(ThemeTokens, takeTheAccentOfTheDesktopNoFurtherThanItCanBeRead)
{
    for (const auto brightness : {Brightness::light, Brightness::dark})
        for (const std::uint32_t accent : {0x3584e4U, 0xe01b24U, 0xf6d32dU, 0x33d17aU, 0x9141acU,
                 0x000000U, 0xffffffU, 0x808080U, 0x00ff00U, 0x0000ffU}) {
            const auto theme = themeTokens(brightness, Colour::fromHex(accent));
            EXPECT_GE(contrast(white, theme.accent), 4.5) << hexText(theme.accent);
            EXPECT_GE(contrast(theme.accent, theme.card), 3.0) << hexText(theme.accent);
            EXPECT_GE(lowestContrast(theme.accentText, groundsOf(theme)), 4.5)
                << hexText(theme.accentText);
        }
}

TEST(ThemeTokens, leaveAnAccentThatCanBeReadAsItIs)
{
    const auto blue = Colour::fromHex(0x1d4fb5);
    const auto theme = themeTokens(Brightness::light, blue);

    EXPECT_EQ(theme.accent, blue);
    EXPECT_EQ(theme.accentText, blue);
    auto expected = themeTokens(Brightness::light);
    expected.accent = blue;
    expected.accentText = blue;
    EXPECT_EQ(theme, expected) << "Nothing else changes.";
}

} // namespace
} // namespace brindlex
