#include "platform/BrowserPageReading.h"

#include "platform/simulated/SimulatedBrowserPages.h"
#include "support/browsers/FakeBrowserPages.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string browser = "org.chromium.Chromium";

/// A browser in memory.
class SimulatedBrowser {
public:
    BrowserPageReading& pages() { return pages_; }
    void show(std::optional<std::string> url) { pages_.setPage(browser, std::move(url)); }
    void pass(Seconds time) { mainThread_.advance(time); }
    void settle() { mainThread_.advance(0.1); }

private:
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    SimulatedBrowserPages pages_{mainThread_};
};

/// A program on a real accessibility bus.
class AccessibleBrowser {
public:
    BrowserPageReading& pages() { return on_.pages; }
    void show(std::optional<std::string> url)
    {
        on_.browser.offer({{.name = "Page - Browser", .url = url.value_or("")}});
    }
    void pass(Seconds time)
    {
        on_.settle();
        on_.mainThread.advance(time);
    }
    void settle() { on_.settle(); }

private:
    FakeBrowserPages on_;
};

template <typename Browser>
class BrowserPageReadingContract : public testing::Test {
protected:
    std::optional<std::string> ask() { return computer.pages().currentURL(browser, "script"); }

    /// Asks as often as the program polls, once the last reading has ended.
    std::optional<std::string> askLater()
    {
        computer.pass(0.8);
        return ask();
    }

    Browser computer;
    int notified = 0;
    Subscription observation = computer.pages().observeChanges([this] { ++notified; });
};

using Browsers = testing::Types<SimulatedBrowser, AccessibleBrowser>;
TYPED_TEST_SUITE(BrowserPageReadingContract, Browsers);

TYPED_TEST(BrowserPageReadingContract, knowsNothingBeforeAPageWasRead)
{
    this->computer.show("https://example.com/");

    EXPECT_EQ(this->ask(), std::nullopt);
    EXPECT_EQ(this->notified, 0);
}

TYPED_TEST(BrowserPageReadingContract, notifiesWhenThePageIsKnown)
{
    this->computer.show("https://example.com/a?b#c");
    this->ask();
    this->computer.settle();

    EXPECT_EQ(this->notified, 1);
    EXPECT_EQ(this->ask(), "https://example.com/a?b#c");
}

TYPED_TEST(BrowserPageReadingContract, doesNotTellOfTheSamePageAgain)
{
    this->computer.show("https://example.com/");
    this->ask();
    this->computer.settle();
    for (int poll = 0; poll < 5; ++poll)
        EXPECT_EQ(this->askLater(), "https://example.com/");
    this->computer.settle();

    EXPECT_EQ(this->notified, 1);
}

TYPED_TEST(BrowserPageReadingContract, notifiesOfAnotherPage)
{
    this->computer.show("https://example.com/");
    this->ask();
    this->computer.settle();
    this->ask();
    this->computer.settle();
    this->computer.show("https://example.org/");

    EXPECT_EQ(this->askLater(), "https://example.com/");
    this->computer.settle();
    EXPECT_EQ(this->notified, 2);
    EXPECT_EQ(this->ask(), "https://example.org/");
}

TYPED_TEST(BrowserPageReadingContract, readsNothingThatNobodyAsksFor)
{
    this->computer.show("https://example.com/");
    this->ask();
    this->computer.settle();
    this->ask();
    this->computer.settle();
    this->computer.show("https://example.org/");
    this->computer.pass(0.8);
    this->computer.settle();

    EXPECT_EQ(this->notified, 1);
}

TYPED_TEST(BrowserPageReadingContract, forgetsThePageOfABrowserThatHasNone)
{
    this->computer.show("https://example.com/");
    this->ask();
    this->computer.settle();
    this->ask();
    this->computer.settle();
    this->computer.show(std::nullopt);
    this->askLater();
    this->computer.settle();

    EXPECT_EQ(this->notified, 2);
    EXPECT_EQ(this->ask(), std::nullopt);
}

TYPED_TEST(BrowserPageReadingContract, staysSilentAboutABrowserThatNeverHasAPage)
{
    this->computer.show(std::nullopt);
    for (int poll = 0; poll < 3; ++poll)
        EXPECT_EQ(this->askLater(), std::nullopt);
    this->computer.settle();

    EXPECT_EQ(this->notified, 0);
}

TYPED_TEST(BrowserPageReadingContract, mayBeAskedByWhoIsNotified)
{
    std::vector<std::optional<std::string>> heard;
    const auto asking
        = this->computer.pages().observeChanges([&] { heard.push_back(this->ask()); });
    this->computer.show("https://example.com/");
    this->ask();
    this->computer.settle();
    this->computer.settle();

    EXPECT_EQ(heard, (std::vector<std::optional<std::string>>{"https://example.com/"}));
}

TYPED_TEST(BrowserPageReadingContract, notifiesNobodyWhoHasEndedTheSubscription)
{
    this->computer.show("https://example.com/");
    this->ask();
    this->observation.reset();
    this->computer.settle();

    EXPECT_EQ(this->notified, 0);
    EXPECT_EQ(this->ask(), "https://example.com/");
}

} // namespace
} // namespace brindlex
