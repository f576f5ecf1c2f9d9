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

/// With the program's own limits.
class LimitedAccessibleBrowserPagesTest : public testing::Test {
protected:
    /// Far more than the limits and far less than to wait for a reply that does not come.
    static constexpr auto aWhile = 8s;

    void expectNoPageSoon(Behaviour behaviour)
    {
        on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}}, behaviour);
        const auto began = std::chrono::steady_clock::now();
        EXPECT_EQ(on.read(), std::nullopt);
        on.settle();
        EXPECT_LT(std::chrono::steady_clock::now() - began, aWhile);
    }

    FakeBrowserPages on{AccessibilityLimits{}};
};

TEST_F(AccessibleBrowserPagesTest, readsTheAddressAsFirefoxNamesIt)
{
    on.browser.offer(
        {{.name = "Page - Browser", .url = "https://example.com/", .attribute = "DocURL"}});

    EXPECT_EQ(on.read(), "https://example.com/");
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

TEST_F(LimitedAccessibleBrowserPagesTest, keepsThePageOfABusyBrowserForTwoSeconds)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    ASSERT_TRUE(on.until([&] { return on.read() == "https://example.com/"; }));
    on.settle();
    on.browser.offer(
        {{.name = "Page - Browser", .url = "https://example.org/"}}, Behaviour::silent);

    on.mainThread.advance(2.0);
    EXPECT_EQ(on.read(), "https://example.com/");
    on.mainThread.advance(0.001);
    EXPECT_EQ(on.read(), std::nullopt);
}

TEST_F(LimitedAccessibleBrowserPagesTest, readsABusyBrowserOnceItHasTime)
{
    expectNoPageSoon(Behaviour::busy);
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});

    EXPECT_TRUE(on.until([&] { return on.read() == "https://example.com/"; }));
}

TEST_F(LimitedAccessibleBrowserPagesTest, doesNotWaitForASilentBrowser)
{
    expectNoPageSoon(Behaviour::silent);
}

TEST_F(LimitedAccessibleBrowserPagesTest, takesNoGarbageForAPage)
{
    expectNoPageSoon(Behaviour::garbage);
}

TEST_F(LimitedAccessibleBrowserPagesTest, doesNotFollowAHugeTree)
{
    expectNoPageSoon(Behaviour::huge);
}

TEST_F(LimitedAccessibleBrowserPagesTest, doesNotRunInCircles)
{
    expectNoPageSoon(Behaviour::circular);
}

TEST_F(LimitedAccessibleBrowserPagesTest, takesNoDocumentThatDoesNotExist)
{
    expectNoPageSoon(Behaviour::dangling);
}

TEST_F(LimitedAccessibleBrowserPagesTest, repliesAtOnceWhileABrowserDoesNot)
{
    on.browser.offer(
        {{.name = "Page - Browser", .url = "https://example.com/"}}, Behaviour::silent);
    const auto began = std::chrono::steady_clock::now();
    for (int question = 0; question < 1000; ++question)
        on.ask();

    EXPECT_LT(std::chrono::steady_clock::now() - began, aWhile);
    on.settle();
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

TEST_F(AccessibleBrowserPagesTest, readsThePageOfANewTitleAtOnce)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    notifications = 0;
    on.browser.offer({{.name = "Next - Browser", .url = "https://example.org/"}});
    on.active->title = "Next - Browser";
    on.titles.notify();
    on.settle();

    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(on.ask(), "https://example.org/");
}

TEST_F(AccessibleBrowserPagesTest, looksAgainForAPageThatComesAfterItsTitle)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    notifications = 0;
    on.titles.notify();
    on.settle();
    EXPECT_EQ(notifications, 0);

    on.browser.offer({{.name = "Page - Browser", .url = "https://example.org/"}});
    on.mainThread.advance(0.03);
    on.settle();
    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(on.ask(), "https://example.org/");

    on.mainThread.advance(10);
    EXPECT_EQ(on.mainThread.timers(), 0u);
}

TEST_F(AccessibleBrowserPagesTest, readsNothingForATitleWhileNobodyObserves)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    observation.reset();
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.org/"}});
    on.titles.notify();
    on.settle();

    EXPECT_EQ(on.ask(), "https://example.com/");
    EXPECT_EQ(on.mainThread.timers(), 0u);
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
