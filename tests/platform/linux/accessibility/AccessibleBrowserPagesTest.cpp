#include "platform/linux/accessibility/AccessibleBrowserPages.h"

#include "platform/linux/accessibility/AccessibilityBus.h"
#include "support/browsers/FakeBrowserPages.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

using Behaviour = FakeBrowser::Behaviour;
using namespace std::chrono_literals;

class AccessibleBrowserPagesTest : public testing::Test {
protected:
    FakeBrowserPages on;
    int notifications = 0;
    Subscription observation = on.pages.observeChanges([this] { ++notifications; });
};

TEST_F(AccessibleBrowserPagesTest, readsTheAddressAsFirefoxNamesIt)
{
    on.browser.offer(
        {{.name = "Page - Browser", .url = "https://example.com/", .attribute = "DocURL"}});

    EXPECT_EQ(on.read(), "https://example.com/");
}

TEST_F(AccessibleBrowserPagesTest, findsTheShowingPageOfAWindowThatEmbedsNone)
{
    on.browser.offer({{.name = "Page - Browser",
        .url = "https://example.com/",
        .attribute = "DocURL",
        .embeds = false}});

    EXPECT_EQ(on.read(), "https://example.com/");
}

TEST_F(AccessibleBrowserPagesTest, knowsNothingOfAWindowThatNeitherEmbedsNorShowsAPage)
{
    on.browser.offer({{.name = "Page - Browser", .embeds = false}});

    EXPECT_EQ(on.read(), std::nullopt);
}

TEST_F(AccessibleBrowserPagesTest, findsTheWindowByItsTitle)
{
    on.browser.offer({{.name = "Other - Browser", .url = "https://example.org/", .isActive = true},
        {.name = "Page - Browser", .url = "https://example.com/"},
        {.name = "Third - Browser", .url = "https://example.net/"}});

    EXPECT_EQ(on.read(), "https://example.com/");
}

TEST_F(AccessibleBrowserPagesTest, findsTheActiveOneOfWindowsWithTheSameTitle)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.org/"},
        {.name = "Page - Browser", .url = "https://example.com/", .isActive = true}});

    EXPECT_EQ(on.read(), "https://example.com/");
}

TEST_F(AccessibleBrowserPagesTest, takesNoOtherWindowForTheActiveOne)
{
    on.browser.offer(
        {{.name = "Other - Browser", .url = "https://example.org/", .isActive = true}});

    EXPECT_EQ(on.read(), std::nullopt);
}

TEST_F(AccessibleBrowserPagesTest, staysWithAWindowWhoseTitleChanges)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    on.active->title = "(1) Inbox - Browser";
    on.browser.offer({{.name = "Inbox - Browser", .url = "https://example.org/"}});
    on.mainThread.advance(0.8);

    EXPECT_EQ(on.read(), "https://example.org/");
}

TEST_F(AccessibleBrowserPagesTest, findsABrowserOfAnotherProcessByExactlyItsTitle)
{
    on.active->processIdentifier = ProcessIdentity{2};
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});

    EXPECT_EQ(on.read(), "https://example.com/");
}

TEST_F(AccessibleBrowserPagesTest, readsNothingOfItsOwnProcess)
{
    on.active->processIdentifier = ProcessIdentity{getpid()};
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});

    EXPECT_EQ(on.read(), std::nullopt);
}

TEST_F(AccessibleBrowserPagesTest, knowsNothingWithoutAnActiveWindow)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    on.active.reset();

    EXPECT_EQ(on.read(), std::nullopt);
}

TEST_F(AccessibleBrowserPagesTest, knowsNothingOfAWindowThatHasJustComeToTheFront)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"},
        {.name = "Other - Browser", .url = "https://example.org/"}});
    ASSERT_EQ(on.read(), "https://example.com/");
    on.active = ActiveWindow{WindowIdentity{0x400002}, on.browser.identity(), "Other - Browser"};

    EXPECT_EQ(on.ask(), std::nullopt);
    on.settle();
    EXPECT_EQ(on.ask(), "https://example.org/");
    EXPECT_EQ(notifications, 2);
}

TEST_F(AccessibleBrowserPagesTest, dropsThePageOfAWindowThatWentWhileItWasRead)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"},
        {.name = "Other - Browser", .url = "https://example.org/"}});
    on.ask();
    on.active = ActiveWindow{WindowIdentity{0x400002}, on.browser.identity(), "Other - Browser"};
    on.settle();

    EXPECT_EQ(notifications, 0);
    EXPECT_EQ(on.ask(), std::nullopt);
    on.settle();
    EXPECT_EQ(on.ask(), "https://example.org/");
}

TEST_F(AccessibleBrowserPagesTest, readsTheNewestWindowAfterTheOneUnderWay)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"},
        {.name = "Other - Browser", .url = "https://example.org/"}});
    on.ask();
    on.active = ActiveWindow{WindowIdentity{0x400002}, on.browser.identity(), "Other - Browser"};
    on.ask();
    on.settle();
    on.settle();

    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(on.ask(), "https://example.org/");
}

TEST_F(AccessibleBrowserPagesTest, keepsApartWhatIsAskedForTwoBrowsers)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    ASSERT_EQ(on.read(), "https://example.com/");

    EXPECT_EQ(on.pages.currentURL("org.mozilla.firefox", ""), std::nullopt);
}

TEST_F(AccessibleBrowserPagesTest, readsOnceForManyQuestions)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    const auto readings
        = [&] { return std::ranges::count(on.browser.questions(), "GetRelationSet"); };
    ASSERT_EQ(on.read(), "https://example.com/");
    const auto before = readings();
    on.mainThread.advance(0.8);
    for (int question = 0; question < 20; ++question)
        on.ask();
    on.settle();
    for (int question = 0; question < 20; ++question)
        on.ask();
    on.settle();

    EXPECT_EQ(readings() - before, 1);
}

TEST_F(AccessibleBrowserPagesTest, findsAWindowOnceAndThenAsksItAlone)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    ASSERT_EQ(on.read(), "https://example.com/");
    const auto before = on.browser.questions();
    on.mainThread.advance(0.8);
    on.read();

    auto questions = on.browser.questions();
    questions.erase(questions.begin(), questions.begin() + std::ssize(before));
    EXPECT_EQ(questions, (std::vector<std::string>{"GetRelationSet", "GetAttributeValue"}));
}

TEST_F(AccessibleBrowserPagesTest, takesNoGarbageForAPage)
{
    on.browser.offer(
        {{.name = "Page - Browser", .url = "https://example.com/"}}, Behaviour::garbage);

    EXPECT_EQ(on.read(), std::nullopt);
    EXPECT_GT(std::ranges::count(on.browser.questions(), "GetChildren"), 0);
}

TEST_F(AccessibleBrowserPagesTest, readsTheFirstEntriesOfAHugeTreeOnly)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}}, Behaviour::huge);

    EXPECT_EQ(on.read(), std::nullopt);
    EXPECT_LE(on.browser.questions().size(), 2 * (AccessibilityBus::mostListEntries + 4));
}

TEST_F(AccessibleBrowserPagesTest, survivesABrowserThatEndsInTheMiddleOfAReading)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}}, Behaviour::dies);

    EXPECT_EQ(on.read(), std::nullopt);
    EXPECT_TRUE(on.until([&] { return !on.browser.isRunning(); }));
    EXPECT_EQ(on.read(), std::nullopt);
}

TEST_F(AccessibleBrowserPagesTest, mayGoWhileAPageIsRead)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    int heard = 0;
    {
        AccessibleBrowserPages pages(on.mainThread, on.clock, on.queue, on.front());
        const auto hearing = pages.observeChanges([&] { ++heard; });
        pages.currentURL("org.chromium.Chromium", "");
    }
    on.settle();

    EXPECT_EQ(heard, 0);
}

} // namespace
} // namespace brindlex
