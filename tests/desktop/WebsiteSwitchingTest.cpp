#include "desktop/ProgramDesk.h"
#include "support/browsers/WebBrowser.h"
#include "support/hardware/Keycodes.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Alpha writes US, browsers German, and below example.org Russian.
SwitchingRules rulesForTheWeb()
{
    return {.applications = {{identifierOf("Alpha"), us}, {"org.chromium.Chromium", german},
                {"org.mozilla.firefox", german}},
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

    WebBrowser browser(desk.desktop, desk.windows, web, "chromium", "one.example.com");
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

class WebsiteSwitchingIn : public testing::TestWithParam<std::string> { };

TEST_P(WebsiteSwitchingIn, followsLoadsTheHistoryAndTabs)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .accessibility = true});
    desk.files.writePreferences(rulesForTheWeb().preferences());
    const LocalWebServer web;
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    WebBrowser browser(desk.desktop, desk.windows, web, GetParam(), "one.example.com");
    ASSERT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    const auto play = [&](std::uint8_t modifier, std::uint8_t key) {
        desk.input.pressKey(modifier);
        desk.input.pressKey(key);
        desk.input.releaseKey(key);
        desk.input.releaseKey(modifier);
    };
    const auto isInForce = [&](const std::string& page, int group) {
        EXPECT_TRUE(browser.shows(page)) << desk.windows.titleOf(browser.window());
        EXPECT_TRUE(desk.usesGroup(group)) << page << program.report();
    };

    ASSERT_TRUE(browser.takesKeys(desk.input));
    desk.input.type("\n");
    isInForce("www.example.org", russianGroup);
    play(keycode::alt, keycode::left);
    isInForce("one.example.com", germanGroup);
    play(keycode::alt, keycode::right);
    isInForce("www.example.org", russianGroup);
    play(keycode::alt, keycode::left);
    isInForce("one.example.com", germanGroup);
    ASSERT_TRUE(browser.open("two.example.org"));
    isInForce("two.example.org", russianGroup);
    play(keycode::control, keycode::tab);
    isInForce("one.example.com", germanGroup);
}

INSTANTIATE_TEST_SUITE_P(Of, WebsiteSwitchingIn, testing::Values("chromium", "firefox"),
    [](const auto& instance) { return instance.param; });

TEST(WebsiteSwitching, letsTheUsersChoiceStandOnOneSite)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .accessibility = true});
    desk.files.writePreferences(rulesForTheWeb().preferences());
    const LocalWebServer web;
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    WebBrowser browser(desk.desktop, desk.windows, web, "chromium", "www.example.org");
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

    const WebBrowser browser(desk.desktop, desk.windows, web, "chromium", "www.example.org");
    ASSERT_TRUE(desk.windows.activate(browser.window()));

    EXPECT_TRUE(throughout(
        std::chrono::milliseconds{1'200}, [&] { return keyboardGroup(desk.server) == usGroup; }));
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

} // namespace
} // namespace brindlex
