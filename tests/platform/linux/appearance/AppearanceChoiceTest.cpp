#include "platform/linux/appearance/AppearanceChoice.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Says everything, with the number in it.
StatedAppearance everything(std::uint32_t number)
{
    return {.isDark = number % 2 == 1,
        .accent = number,
        .reducesMotion = number % 2 == 1,
        .font = DesktopFont{"Font", number + 10.0},
        .textScale = number};
}

constexpr std::uint32_t portal = 1;
constexpr std::uint32_t kde = 2;
constexpr std::uint32_t xSettings = 3;
constexpr std::uint32_t gtk4 = 4;
constexpr std::uint32_t gtk3 = 5;

const AppearanceSources allSources{
    everything(portal), everything(kde), everything(xSettings), everything(gtk4), everything(gtk3)};

TEST(desktopFamily, isThatOfTheNamesOfTheSession)
{
    for (const auto* name : {"GNOME", "ubuntu:GNOME", "Budgie:GNOME", "Unity", "Pantheon"})
        EXPECT_EQ(desktopFamily(name), DesktopFamily::gnome) << name;
    EXPECT_EQ(desktopFamily("KDE"), DesktopFamily::kde);
    for (const auto* name : {"", "XFCE", "MATE", "i3", "LXQt", "kde", ":", "GNOME2"})
        EXPECT_EQ(desktopFamily(name), DesktopFamily::other) << name;
}

TEST(chosenAppearance, isLightWithoutASource)
{
    for (const auto family : {DesktopFamily::gnome, DesktopFamily::kde, DesktopFamily::other})
        EXPECT_EQ(chosenAppearance({}, family), DesktopAppearance{});
}

TEST(chosenAppearance, isFirstOfThePortalWhichHasNoFontButThatOfGnome)
{
    const auto chosen = [](DesktopFamily family) { return chosenAppearance(allSources, family); };
    EXPECT_EQ(chosen(DesktopFamily::gnome),
        (DesktopAppearance{true, portal, true, {"Font", portal + 10.0}, xSettings}));
    EXPECT_EQ(chosen(DesktopFamily::kde),
        (DesktopAppearance{true, portal, true, {"Font", kde + 10.0}, xSettings}));
    EXPECT_EQ(chosen(DesktopFamily::other),
        (DesktopAppearance{true, portal, true, {"Font", xSettings + 10.0}, xSettings}));
}

TEST(chosenAppearance, isOfTheNextSourceForEachPart)
{
    auto sources = allSources;
    sources.portal = {};
    EXPECT_EQ(chosenAppearance(sources, DesktopFamily::kde),
        (DesktopAppearance{false, kde, false, {"Font", kde + 10.0}, xSettings}));
    EXPECT_EQ(chosenAppearance(sources, DesktopFamily::other),
        (DesktopAppearance{true, {}, true, {"Font", xSettings + 10.0}, xSettings}));
    sources.xSettings = {.isDark = true};
    EXPECT_EQ(chosenAppearance(sources, DesktopFamily::other),
        (DesktopAppearance{true, {}, false, {"Font", gtk4 + 10.0}, 1}));
    sources.gtk4 = {};
    EXPECT_EQ(chosenAppearance(sources, DesktopFamily::other),
        (DesktopAppearance{true, {}, true, {"Font", gtk3 + 10.0}, 1}));
}

TEST(chosenAppearance, hasTheScaleOfGnomeWhereNobodyElseSeesToIt)
{
    const AppearanceSources sources{.portal = {.textScale = 1.5}};
    EXPECT_EQ(chosenAppearance(sources, DesktopFamily::gnome).textScale, 1.5);
    EXPECT_EQ(chosenAppearance(sources, DesktopFamily::kde).textScale, 1);
    EXPECT_EQ(chosenAppearance(sources, DesktopFamily::other).textScale, 1);
}

} // namespace
} // namespace brindlex
