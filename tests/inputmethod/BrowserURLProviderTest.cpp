#include "inputmethod/BrowserURLProvider.h"

#include "platform/simulated/SimulatedBrowserPages.h"
#include "platform/simulated/SimulatedMainThread.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

struct BrowserRow {
    std::string bundleID;
    std::string tab;
};

class BrowserURLProviderTable : public testing::TestWithParam<BrowserRow> { };

TEST_P(BrowserURLProviderTable, namesABrowserAndItsWordForTheCurrentTab)
{
    const auto& [bundleID, tab] = GetParam();

    EXPECT_TRUE(BrowserURLProvider::isSupported(bundleID));
    EXPECT_EQ(BrowserURLProvider::script(bundleID),
        "tell application id \"" + bundleID
            + "\"\n"
              "    if (count of windows) is 0 then return \"\"\n"
              "    return URL of "
            + tab
            + " of front window\n"
              "end tell");
}

INSTANTIATE_TEST_SUITE_P(BrowserURLProvider, BrowserURLProviderTable,
    testing::Values(BrowserRow{"com.apple.Safari", "current tab"},
        BrowserRow{"com.apple.SafariTechnologyPreview", "current tab"},
        BrowserRow{"com.google.Chrome", "active tab"},
        BrowserRow{"com.google.Chrome.canary", "active tab"},
        BrowserRow{"com.microsoft.edgemac", "active tab"},
        BrowserRow{"com.microsoft.edgemac.Canary", "active tab"},
        BrowserRow{"com.brave.Browser", "active tab"},
        BrowserRow{"com.brave.Browser.beta", "active tab"},
        BrowserRow{"com.operasoftware.Opera", "active tab"},
        BrowserRow{"company.thebrowser.Browser", "active tab"},
        BrowserRow{"org.chromium.Chromium", "active tab"}));

TEST(BrowserURLProvider, knowsFirefoxWhichCannotBeAskedByScript)
{
    EXPECT_TRUE(BrowserURLProvider::isSupported("org.mozilla.firefox"));
    EXPECT_EQ(BrowserURLProvider::script("org.mozilla.firefox"), std::nullopt);
}

TEST(BrowserURLProvider, asksSafariInExactlyTheseWords)
{
    EXPECT_EQ(BrowserURLProvider::script("com.apple.Safari"),
        R"(tell application id "com.apple.Safari"
    if (count of windows) is 0 then return ""
    return URL of current tab of front window
end tell)");
}

TEST(BrowserURLProvider, asksChromeInExactlyTheseWords)
{
    EXPECT_EQ(BrowserURLProvider::script("com.google.Chrome"),
        R"(tell application id "com.google.Chrome"
    if (count of windows) is 0 then return ""
    return URL of active tab of front window
end tell)");
}

TEST(BrowserURLProvider, knowsNoOtherApplication)
{
    for (const auto* bundleID : {"", "com.apple.TextEdit", "com.apple.safari", "com.apple.Safari ",
             "com.google.Chrome.other", "com.google", "org.mozilla.firefox\"", "firefox"}) {
        EXPECT_FALSE(BrowserURLProvider::isSupported(bundleID)) << bundleID;
        EXPECT_EQ(BrowserURLProvider::script(bundleID), std::nullopt) << bundleID;
    }
}

struct BrowserURLProviderTest : testing::Test {
    /// The host once the page that the browser shows has been read.
    std::optional<std::string> hostOf(
        const std::optional<std::string>& bundleID, std::optional<std::string> url)
    {
        pages.setPage(bundleID.value_or(""), std::move(url));
        BrowserURLProvider::currentHost(bundleID, pages);
        mainThread.advance(1);
        return BrowserURLProvider::currentHost(bundleID, pages);
    }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedBrowserPages pages{mainThread};
};

TEST_F(BrowserURLProviderTest, knowsThePageOfABrowserWithoutAScript)
{
    EXPECT_EQ(hostOf("org.mozilla.firefox", "https://www.example.de/"), "example.de");
}

TEST_F(BrowserURLProviderTest, itsHostIsTheNormalisedDomainOfThePage)
{
    EXPECT_EQ(hostOf("org.chromium.Chromium", "https://www.GitHub.com/a?b#c"), "github.com");
}

TEST_F(BrowserURLProviderTest, itsHostIsAskedForInTheBrowsersWords)
{
    hostOf("com.apple.Safari", "https://example.com/");

    const auto script = *BrowserURLProvider::script("com.apple.Safari");
    EXPECT_EQ(pages.scripts(), (std::vector{script, script}));
}

TEST_F(BrowserURLProviderTest, itsHostIsAbsentUntilThePageWasRead)
{
    pages.setPage("com.google.Chrome", "https://example.com/");

    EXPECT_EQ(BrowserURLProvider::currentHost("com.google.Chrome", pages), std::nullopt);
}

TEST_F(BrowserURLProviderTest, itsHostIsAbsentForABrowserWithoutAWindow)
{
    EXPECT_EQ(hostOf("com.google.Chrome", ""), std::nullopt);
}

TEST_F(BrowserURLProviderTest, itsHostIsAbsentForABrowserThatDoesNotReply)
{
    EXPECT_EQ(hostOf("com.google.Chrome", std::nullopt), std::nullopt);
}

TEST_F(BrowserURLProviderTest, itsHostIsAbsentForAPageWithoutAProperHost)
{
    for (const auto* url : {"about:blank", "chrome://newtab/", "file:///home/user/page.html",
             "data:text/html,hello", "http://localhost/", "   ", "\xff\xfe"})
        EXPECT_EQ(hostOf("com.google.Chrome", url), std::nullopt) << url;
}

TEST_F(BrowserURLProviderTest, itsHostIsAbsentForAnUnsupportedApplicationWhichIsNotAsked)
{
    EXPECT_EQ(hostOf("com.apple.TextEdit", "https://example.com/"), std::nullopt);
    EXPECT_EQ(pages.scripts(), std::vector<std::string>{});
}

TEST_F(BrowserURLProviderTest, itsHostIsAbsentWithoutAnApplicationAndNothingIsAsked)
{
    EXPECT_EQ(hostOf(std::nullopt, "https://example.com/"), std::nullopt);
    EXPECT_EQ(pages.scripts(), std::vector<std::string>{});
}

} // namespace
} // namespace brindlex
