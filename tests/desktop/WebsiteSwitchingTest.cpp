#include "desktop/ProgramDesk.h"
#include "support/browsers/ChromiumBrowser.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Alpha writes US, the browser German, and below example.org Russian.
SwitchingRules rulesForTheWeb()
{
    return {.applications = {{identifierOf("Alpha"), us}, {"org.chromium.Chromium", german}},
        .websites = {{"example.org", russian}}};
}

TEST(WebsiteSwitching, followsThePageInFront)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .accessibility = true});
    desk.files.writePreferences(rulesForTheWeb().preferences());
    const LocalWebServer web;
    const TypingWindow alpha(desk.windows, "Alpha");
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    ChromiumBrowser browser(desk.desktop, desk.windows, web, "one.example.com");
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();

    ASSERT_TRUE(browser.open("www.example.org"));
    EXPECT_TRUE(desk.usesGroup(russianGroup)) << program.report();

    ASSERT_TRUE(browser.open("example.com.example.com"));
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();

    ASSERT_TRUE(browser.open("deep.down.example.org"));
    EXPECT_TRUE(desk.usesGroup(russianGroup)) << program.report();
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(desk.usesGroup(usGroup)) << program.report();
    ASSERT_TRUE(desk.windows.activate(browser.window()));
    EXPECT_TRUE(desk.usesGroup(russianGroup)) << program.report();
}

TEST(WebsiteSwitching, letsTheUsersChoiceStandOnOneSite)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .accessibility = true});
    desk.files.writePreferences(rulesForTheWeb().preferences());
    const LocalWebServer web;
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    ChromiumBrowser browser(desk.desktop, desk.windows, web, "www.example.org");
    ASSERT_TRUE(desk.usesGroup(russianGroup)) << program.report();

    chooseKeyboardGroup(desk.server, usGroup);
    ASSERT_TRUE(browser.open("deep.example.org"));

    // Longer than it takes to ask the browser for its page again.
    EXPECT_TRUE(throughout(
        std::chrono::milliseconds{1'200}, [&] { return keyboardGroup(desk.server) == usGroup; }));
}

TEST(WebsiteSwitching, doesNothingInABrowserWhosePageIsUnknown)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .accessibility = false});
    desk.files.writePreferences(rulesForTheWeb().preferences());
    const LocalWebServer web;
    const TypingWindow alpha(desk.windows, "Alpha");
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    const ChromiumBrowser browser(desk.desktop, desk.windows, web, "www.example.org");
    ASSERT_TRUE(desk.windows.activate(browser.window()));

    EXPECT_TRUE(throughout(
        std::chrono::milliseconds{1'200}, [&] { return keyboardGroup(desk.server) == usGroup; }));
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

} // namespace
} // namespace brindlex
