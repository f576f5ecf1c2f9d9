#include "platform/linux/accessibility/AccessibleBrowserPages.h"

#include "support/browsers/FakeBrowserPages.h"

#include <chrono>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Behaviour = FakeBrowser::Behaviour;
using namespace std::chrono_literals;

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

} // namespace
} // namespace brindlex
