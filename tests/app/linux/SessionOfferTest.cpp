#include "app/linux/SessionOffer.h"

#include <gtest/gtest.h>

#include <string_view>

namespace brindlex {
namespace {

SessionOffer offerWithDisplay(const char* display)
{
    return SessionOffer::fromEnvironment(
        [display](std::string_view name) { return name == "DISPLAY" ? display : nullptr; });
}

TEST(SessionOffer, hasX11WhereAnXServerIsNamed)
{
    EXPECT_TRUE(offerWithDisplay(":0").hasX11);
    EXPECT_TRUE(offerWithDisplay("localhost:10.0").hasX11);
}

TEST(SessionOffer, hasNoX11WithoutAName)
{
    EXPECT_FALSE(offerWithDisplay(nullptr).hasX11);
    EXPECT_FALSE(offerWithDisplay("").hasX11);
}

TEST(SessionOffer, namesTheDesktop)
{
    const auto desktopNamed = [](const char* names) {
        return SessionOffer::fromEnvironment([names](std::string_view name) {
            return name == "XDG_CURRENT_DESKTOP" ? names : nullptr;
        }).desktop;
    };
    EXPECT_EQ(desktopNamed("KDE"), DesktopFamily::kde);
    EXPECT_EQ(desktopNamed("ubuntu:GNOME"), DesktopFamily::gnome);
    EXPECT_EQ(desktopNamed(nullptr), DesktopFamily::other);
}

} // namespace
} // namespace brindlex
