#include "support/browsers/WebBrowser.h"

#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class WebBrowserTest : public testing::TestWithParam<std::string> { };

TEST_P(WebBrowserTest, showsThePagesOfHostsThatDoNotExist)
{
    const VirtualDesktop desktop({.accessibility = true});
    const LocalWebServer web;
    const XConnection server;
    const DesktopWindows windows(server);

    WebBrowser browser(desktop, windows, web, GetParam(), "one.example.com");

    const PlayedInput hand(server);
    ASSERT_TRUE(browser.takesKeys(hand));
    hand.type("\n");
    EXPECT_TRUE(browser.shows("www.example.org"));
    hand.pressKey(keycode::alt);
    hand.pressKey(keycode::left);
    hand.releaseKey(keycode::left);
    hand.releaseKey(keycode::alt);
    EXPECT_TRUE(browser.shows("one.example.com"));

    EXPECT_TRUE(browser.open("two.example.org")) << browser.output();
    EXPECT_EQ(windows.active(), browser.window());
}

INSTANTIATE_TEST_SUITE_P(Of, WebBrowserTest, testing::Values("chromium", "firefox"),
    [](const auto& instance) { return instance.param; });

TEST(LocalWebServer, namesThePageAfterTheHost)
{
    EXPECT_NE(pageFor("GET / HTTP/1.1\r\nHost: a.example.com:80\r\n\r\n")
                  .find("<title>a.example.com</title>"),
        std::string::npos);
    EXPECT_NE(pageFor("rubbish").find("<title>nowhere</title>"), std::string::npos);
}

} // namespace
} // namespace brindlex
