#include "platform/linux/tray/TrayStatusItem.h"

#include "platform/linux/tray/TrayStatusItemFixture.h"
#include "support/hardware/PlayedInput.h"
#include "support/screen/Screenshot.h"

#include <xcb/xtest.h>

namespace brindlex {
namespace {

/// The icon as a window in a tray.
class TrayStatusItemDocked : public TrayStatusItemFixture {
protected:
    void playButton(std::uint8_t type, std::uint8_t button) const
    {
        xcb_test_fake_input(server.get(), type, button, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        server.sync();
    }
};

TEST_F(TrayStatusItemDocked, saysOfItsWindowWhatTraysAskFor)
{
    tray.emplace();
    show();
    ASSERT_TRUE(isInTrayAlone());

    const auto icon = tray->icons().front();
    const auto hints = server.values(icon, "WM_NORMAL_HINTS");
    ASSERT_EQ(hints.size(), 18u);
    EXPECT_EQ((std::vector{hints[0], hints[5], hints[6]}), (std::vector{16U, 22U, 22U}));
    EXPECT_EQ(server.values(icon, "_XEMBED_INFO"), (std::vector{0U, 1U}));
    EXPECT_EQ(server.text(icon, "_NET_WM_NAME"), "Program");
    EXPECT_EQ(server.text(icon, "WM_CLASS"), std::string("brindlex\0Brindlex\0", 18));
}

TEST_F(TrayStatusItemDocked, survivesATrayThatTakesItsIconsWithIt)
{
    tray.emplace(DockTray::Options{.savesIcons = false});
    show();
    ASSERT_TRUE(isInTrayAlone());

    tray.reset();
    EXPECT_TRUE(until([this] { return !isOnDesktop(); }));

    tray.emplace();
    EXPECT_TRUE(isInTrayAlone());
}

TEST_F(TrayStatusItemDocked, leavesNoWindowOfAnIconThatWasPutOut)
{
    tray.emplace();
    show();
    ASSERT_TRUE(isInTrayAlone());
    const DesktopWindows windows(server);
    const auto icon = tray->icons().front();

    tray->putOut();

    EXPECT_TRUE(until([this] { return !isOnDesktop(); }));
    EXPECT_TRUE(until([&] { return !windows.isOnScreen(icon); }));
}

TEST_F(TrayStatusItemDocked, goesToTheTrayThatTakesThePlaceOfAnother)
{
    tray.emplace();
    show();
    ASSERT_TRUE(isInTrayAlone());

    DockTray second;

    EXPECT_TRUE(until([&] { return second.icons().size() == 1 && isOnDesktop(); }));
    EXPECT_TRUE(until([this] { return !isInTray(); }));
}

TEST_F(TrayStatusItemDocked, closesItsOwnMenuWithAClickElsewhere)
{
    const PlayedInput input(server);
    tray.emplace();
    show();
    ASSERT_TRUE(isInTrayAlone());
    int clicks = 0;
    const auto clicking = item.observeActivation([&] { ++clicks; });

    input.movePointer(tray->iconArea().centreX(), tray->iconArea().centreY());
    playButton(XCB_BUTTON_PRESS, 3);
    ASSERT_TRUE(until([] {
        const auto* const menu = QApplication::activePopupWidget();
        return menu && menu->isVisible();
    })) << "before the button is up again";
    playButton(XCB_BUTTON_RELEASE, 3);
    input.click(600, 500);

    EXPECT_TRUE(until([] { return QApplication::activePopupWidget() == nullptr; }));
    input.click(tray->iconArea().centreX(), tray->iconArea().centreY());
    EXPECT_TRUE(until([&] { return clicks == 1; })) << "the pointer is free again";
}

TEST_F(TrayStatusItemDocked, hasAnAlphaInATrayThatWantsOne)
{
    tray.emplace(DockTray::Options{.wantsAlpha = true});
    show();
    ASSERT_TRUE(isInTrayAlone());

    const auto cookie = xcb_get_geometry(server.get(), tray->icons().front());
    const XReply<xcb_get_geometry_reply_t> icon(
        xcb_get_geometry_reply(server.get(), cookie, nullptr));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->depth, 32);
    const Screenshot::Pixel white{255, 255, 255};
    EXPECT_TRUE(until([&] { return Screenshot(server, tray->iconArea()).at(11, 10) == white; }));
}

TEST_F(TrayStatusItemDocked, isDrawnOverTheGroundOfTheTray)
{
    for (const std::uint32_t ground : {0xF0F0F0U, 0x202124U}) {
        tray.emplace(DockTray::Options{.iconSize = 24, .ground = ground});
        show();
        ASSERT_TRUE(isInTrayAlone());
        const auto area = tray->iconArea();
        const auto colourAt = [&](int x, int y) {
            const auto pixel = Screenshot(server, area).at(x, y);
            return static_cast<std::uint32_t>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
        };
        // The middle of the mark is white, and the corners are free.
        EXPECT_TRUE(until([&] { return colourAt(11, 10) == 0xFFFFFF; })) << std::hex << ground;
        EXPECT_EQ(colourAt(0, 0), ground);
        item.hide();
        tray.reset();
    }
}

} // namespace
} // namespace brindlex
