#include "platform/linux/appearance/XSettings.h"

#include "support/screen/SettingsManager.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const ManagedSettings someSettings{
    {"Gtk/FontName", "Noto Sans 10"}, {"Net/ThemeName", "Adwaita-dark"}, {"Xft/DPI", 98'304}};

const XSettings theSame{
    {"Gtk/FontName", "Noto Sans 10"}, {"Net/ThemeName", "Adwaita-dark"}, {"Xft/DPI", 98'304}};

TEST(XSettings, areReadInEitherOrderOfBytes)
{
    EXPECT_EQ(xSettingsOf(settingsContent(someSettings)), theSame);
    EXPECT_EQ(xSettingsOf(settingsContent(someSettings, true)), theSame);
    EXPECT_EQ(xSettingsOf(settingsContent({})), XSettings{});
    EXPECT_EQ(
        xSettingsOf(settingsContent({{"a", -1}, {"", ""}})), (XSettings{{"a", -1}, {"", ""}}));
}

TEST(XSettings, leaveColoursOut)
{
    auto content = settingsContent({{"a", 1}, {"b", 2}, {"c", 3}});
    // The second is a colour: its kind, and what it is longer by.
    constexpr std::size_t second = 12 + 16;
    content[second] = 2;
    content.insert(second + 16, 4, '\xFF');
    EXPECT_EQ(xSettingsOf(content), (XSettings{{"a", 1}, {"c", 3}}));
}

TEST(XSettings, areThoseBeforeTheDamage)
{
    const auto whole = settingsContent(someSettings);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto cut = xSettingsOf(whole.substr(0, length));
        EXPECT_LT(cut.size(), theSame.size());
        for (const auto& setting : cut)
            EXPECT_EQ(*theSame.find(setting.first), setting);
    }
    auto unknownKind = settingsContent({{"a", 1}, {"b", 2}, {"c", 3}});
    unknownKind[12 + 16] = 9;
    EXPECT_EQ(xSettingsOf(unknownKind), (XSettings{{"a", 1}}));
}

TEST(XSettings, areNotWhatLengthsAndCountsClaim)
{
    auto many = settingsContent({{"a", 1}});
    many.replace(8, 4, 4, '\xFF');
    EXPECT_EQ(xSettingsOf(many), (XSettings{{"a", 1}}));
    auto longName = settingsContent({{"a", 1}});
    longName.replace(14, 2, 2, '\xFF');
    EXPECT_EQ(xSettingsOf(longName), XSettings{});
    auto longText = settingsContent({{"a", "text"}});
    longText.replace(24, 4, 4, '\xFF');
    EXPECT_EQ(xSettingsOf(longText), XSettings{});
}

TEST(XSettings, areWellFormedText)
{
    EXPECT_EQ(
        xSettingsOf(settingsContent({{"a\xFF", "b\xFE"}})), (XSettings{{"a\uFFFD", "b\uFFFD"}}));
}

TEST(XSettings, haveNumbersAndTextsByTheirNames)
{
    EXPECT_EQ(numberOf(theSame, "Xft/DPI"), 98'304);
    EXPECT_EQ(textOf(theSame, "Net/ThemeName"), "Adwaita-dark");
    EXPECT_EQ(textOf(theSame, "Xft/DPI"), std::nullopt);
    EXPECT_EQ(numberOf(theSame, "Net/ThemeName"), std::nullopt);
    EXPECT_EQ(textOf(theSame, "Gtk/ThemeName"), std::nullopt);
}

} // namespace
} // namespace brindlex
