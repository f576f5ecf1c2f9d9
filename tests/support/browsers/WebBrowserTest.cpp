#include "support/browsers/ChromiumBrowser.h"

#include "support/basics/Eventually.h"
#include "support/hardware/PlayedInput.h"
#include "support/screen/Screenshot.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ChromiumBrowser, showsThePagesOfHostsThatDoNotExist)
{
    const VirtualDesktop desktop({.accessibility = true});
    const LocalWebServer web;
    const XConnection server;
    const DesktopWindows windows(server);

    ChromiumBrowser browser(desktop, windows, web, "one.example.com");
    EXPECT_EQ(windows.classOf(browser.window()), "Chromium");

    EXPECT_TRUE(browser.open("two.example.org")) << browser.output();
    EXPECT_EQ(windows.active(), browser.window());
}

TEST(LocalWebServer, namesThePageAfterTheHost)
{
    EXPECT_NE(pageFor("GET / HTTP/1.1\r\nHost: a.example.com:80\r\n\r\n")
                  .find("<title>a.example.com</title>"),
        std::string::npos);
    EXPECT_NE(pageFor("rubbish").find("<title>nowhere</title>"), std::string::npos);
}

} // namespace
} // namespace brindlex
