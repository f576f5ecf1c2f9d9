#include "platform/linux/accessibility/AccessibleBrowserPages.h"

#include "support/browsers/FakeBrowserPages.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// A browser whose pages somebody observes.
class AccessibleBrowserPagesTitles : public testing::Test {
protected:
    FakeBrowserPages on;
    int notifications = 0;
    Subscription observation = on.pages.observeChanges([this] { ++notifications; });
};

TEST_F(AccessibleBrowserPagesTitles, readsThePageOfANewTitleAtOnce)
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

TEST_F(AccessibleBrowserPagesTitles, looksAgainForAPageThatComesAfterItsTitle)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    notifications = 0;
    on.titles.notify();
    on.settle();
    EXPECT_EQ(notifications, 0);

    on.browser.offer({{.name = "Page - Browser", .url = "https://example.org/"}});
    on.mainThread.advance(0.02);
    on.settle();
    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(on.ask(), "https://example.org/");

    on.mainThread.advance(10);
    EXPECT_EQ(on.mainThread.timers(), 0u);
}

TEST_F(AccessibleBrowserPagesTitles, looksAgainWhereThereIsNoPageForAMoment)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    on.browser.offer({{.name = "Page - Browser", .embeds = false}});
    on.titles.notify();
    on.settle();
    ASSERT_EQ(on.ask(), std::nullopt);
    on.settle(); // What was asked for now must not find the next page.
    notifications = 0;

    on.browser.offer({{.name = "Page - Browser", .url = "https://example.org/"}});
    on.mainThread.advance(0.02);
    on.settle();

    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(on.ask(), "https://example.org/");
}

TEST_F(AccessibleBrowserPagesTitles, looksForHalfASecondForAPageThatComesLate)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    notifications = 0;
    on.titles.notify();
    on.settle();
    for (const auto delay : {0.02, 0.03, 0.04, 0.05, 0.06, 0.1}) {
        on.mainThread.advance(delay);
        on.settle();
        EXPECT_EQ(on.mainThread.timers(), 1u) << delay;
    }
    EXPECT_EQ(notifications, 0);

    on.browser.offer({{.name = "Page - Browser", .url = "https://example.org/"}});
    on.mainThread.advance(0.2);
    on.settle();
    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(on.ask(), "https://example.org/");
    EXPECT_EQ(on.mainThread.timers(), 0u);
}

TEST_F(AccessibleBrowserPagesTitles, readsNothingForATitleWhileNobodyObserves)
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

} // namespace
} // namespace brindlex
