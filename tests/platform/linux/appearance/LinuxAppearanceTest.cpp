#include "platform/linux/appearance/LinuxAppearance.h"

#include "platform/linux/appearance/FakePortal.h"
#include "platform/linux/system/SessionBus.h"
#include "support/basics/TemporaryFolder.h"
#include "support/bus/PrivateBus.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/SettingsManager.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string darkKde = "[Colors:Window]\nBackgroundNormal=42,46,50\n"
                            "[General]\nfont=Noto Sans,12,-1,5,50,0,0,0,0,0\n";
const std::string darkGtk = "[Settings]\ngtk-theme-name=Arc-Dark\ngtk-font-name=Ubuntu 11\n";

class LinuxAppearanceTest : public testing::Test {
protected:
    void follow(DesktopFamily family)
    {
        appearance.emplace(display, session.connection(), desktop.configFolder(), family);
    }
    void put(const std::string& file, const std::string& content)
    {
        const auto path = desktop.configFolder() / file;
        std::filesystem::create_directories(path.parent_path());
        write(path, content);
    }
    bool becomes(const DesktopAppearance& expected)
    {
        return loopUntil([&] { return appearance->current().value() == expected; });
    }

    VirtualDesktop desktop{{.windowManager = WindowManager::none, .sessionBus = false}};
    PrivateBus bus;
    SessionBus session{bus.address()};
    FakePortal portal{bus.address()};
    X11Connection display;
    std::optional<LinuxAppearance> appearance;
};

TEST_F(LinuxAppearanceTest, isReadBeforeTheLoopRunsWhereNoPortalIsAsked)
{
    put("kdeglobals", darkKde);
    follow(DesktopFamily::kde);
    EXPECT_EQ(appearance->current().value(),
        (DesktopAppearance{.isDark = true, .font = {"Noto Sans", 12}}));
    put("gtk-3.0/settings.ini", darkGtk);
    follow(DesktopFamily::other);
    EXPECT_EQ(
        appearance->current().value(), (DesktopAppearance{.isDark = true, .font = {"Ubuntu", 11}}))
        << "settings that KDE has left behind count on no other desktop";
}

TEST_F(LinuxAppearanceTest, followsEverySource)
{
    follow(DesktopFamily::kde);
    EXPECT_EQ(appearance->current().value(), DesktopAppearance{});
    put("gtk-3.0/settings.ini", darkGtk);
    EXPECT_TRUE(becomes({.isDark = true, .font = {"Ubuntu", 11}}));
    put("gtk-4.0/settings.ini", "[Settings]\ngtk-theme-name=Arc\n");
    EXPECT_TRUE(becomes({.font = {"Ubuntu", 11}}));
    const SettingsManager manager(
        ManagedSettings{{"Net/ThemeName", "Arc-Dark"}, {"Gtk/FontName", "Inter 9"}});
    EXPECT_TRUE(becomes({.isDark = true, .font = {"Inter", 9}}));
    put("kdeglobals", "[Colors:Window]\nBackgroundNormal=255,255,255\n");
    EXPECT_TRUE(becomes({.font = {"Inter", 9}}));
    portal.settings["org.freedesktop.appearance"]["color-scheme"] = 1U;
    portal.start();
    EXPECT_TRUE(becomes({.isDark = true, .font = {"Inter", 9}}));
}

TEST_F(LinuxAppearanceTest, scalesTheTextOfGnomeOnce)
{
    portal.settings["org.gnome.desktop.interface"]["font-name"] = QStringLiteral("Cantarell 11");
    portal.settings["org.gnome.desktop.interface"]["text-scaling-factor"] = 2.0;
    portal.start();
    follow(DesktopFamily::gnome);
    EXPECT_TRUE(becomes({.font = {"Cantarell", 11}, .textScale = 2}));

    const SettingsManager manager(ManagedSettings{{"Xft/DPI", 196'608}});
    EXPECT_TRUE(becomes({.font = {"Cantarell", 11}})) << "the dots per inch have it";
}

} // namespace
} // namespace brindlex
