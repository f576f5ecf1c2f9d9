#include "platform/linux/AccessibleBrowserPages.h"

#include "support/FakeBrowserPages.h"

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

using Behaviour = FakeBrowser::Behaviour;
using namespace std::chrono_literals;

class AccessibleBrowserPagesTest : public testing::Test {
protected:
    /// How long the main thread and how long a reading takes at most, with room for a machine that
    /// has other things to do.
    static constexpr auto patience = 400ms;

    void expectPromptAndUnknown(Behaviour behaviour)
    {
        on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}}, behaviour);
        const auto began = std::chrono::steady_clock::now();
        EXPECT_EQ(on.read(), std::nullopt);
        on.settle();
        EXPECT_LT(std::chrono::steady_clock::now() - began, 2 * patience);
    }

    FakeBrowserPages on;
    int told = 0;
    Subscription observation = on.pages.observeChanges([this] { ++told; });
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
    on.active->processIdentifier = 2;
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});

    EXPECT_EQ(on.read(), "https://example.com/");
}

TEST_F(AccessibleBrowserPagesTest, readsNothingOfItsOwnProcess)
{
    on.active->processIdentifier = getpid();
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});

    EXPECT_EQ(on.read(), std::nullopt);
    EXPECT_EQ(on.browser.questions(), 0);
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
    on.active = ActiveWindow{0x400002, on.browser.process(), "Other - Browser"};

    EXPECT_EQ(on.ask(), std::nullopt);
    on.settle();
    EXPECT_EQ(on.ask(), "https://example.org/");
    EXPECT_EQ(told, 2);
}

TEST_F(AccessibleBrowserPagesTest, dropsThePageOfAWindowThatWentWhileItWasRead)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"},
        {.name = "Other - Browser", .url = "https://example.org/"}});
    on.ask();
    on.active = ActiveWindow{0x400002, on.browser.process(), "Other - Browser"};
    on.settle();

    EXPECT_EQ(told, 0);
    EXPECT_EQ(on.ask(), std::nullopt);
    on.settle();
    EXPECT_EQ(on.ask(), "https://example.org/");
}

TEST_F(AccessibleBrowserPagesTest, readsTheNewestWindowAfterTheOneUnderWay)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"},
        {.name = "Other - Browser", .url = "https://example.org/"}});
    on.ask();
    on.active = ActiveWindow{0x400002, on.browser.process(), "Other - Browser"};
    on.ask();
    on.settle();
    on.settle();

    EXPECT_EQ(told, 1);
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
    on.read();
    const auto before = on.browser.questions();
    on.mainThread.advance(0.8);
    for (int question = 0; question < 20; ++question)
        on.ask();
    on.settle();
    for (int question = 0; question < 20; ++question)
        on.ask();
    on.settle();

    // What the window embeds, and its address.
    EXPECT_EQ(on.browser.questions() - before, 2);
}

TEST_F(AccessibleBrowserPagesTest, keepsThePageOfABusyBrowserForTwoSeconds)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    on.read();
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.org/"}}, Behaviour::busy);

    on.mainThread.advance(2.0);
    EXPECT_EQ(on.read(), "https://example.com/");
    on.mainThread.advance(0.001);
    EXPECT_EQ(on.read(), std::nullopt);
    EXPECT_EQ(told, 1);
}

TEST_F(AccessibleBrowserPagesTest, readsABusyBrowserOnceItHasTime)
{
    expectPromptAndUnknown(Behaviour::busy);
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});

    EXPECT_TRUE(on.until([&] { return on.read() == "https://example.com/"; }));
}

TEST_F(AccessibleBrowserPagesTest, doesNotWaitForASilentBrowser)
{
    expectPromptAndUnknown(Behaviour::silent);
}

TEST_F(AccessibleBrowserPagesTest, takesNoGarbageForAPage)
{
    expectPromptAndUnknown(Behaviour::garbage);
}

TEST_F(AccessibleBrowserPagesTest, doesNotFollowAHugeTree)
{
    expectPromptAndUnknown(Behaviour::huge);
}

TEST_F(AccessibleBrowserPagesTest, doesNotRunInCircles)
{
    expectPromptAndUnknown(Behaviour::circular);
}

TEST_F(AccessibleBrowserPagesTest, takesNoDocumentThatDoesNotExist)
{
    expectPromptAndUnknown(Behaviour::dangling);
}

TEST_F(AccessibleBrowserPagesTest, survivesABrowserThatEndsInTheMiddleOfAReading)
{
    expectPromptAndUnknown(Behaviour::dies);
    EXPECT_TRUE(on.until([&] { return !on.browser.isRunning(); }));

    EXPECT_EQ(on.read(), std::nullopt);
}

TEST_F(AccessibleBrowserPagesTest, answersAtOnceWhileABrowserDoesNot)
{
    on.browser.offer(
        {{.name = "Page - Browser", .url = "https://example.com/"}}, Behaviour::silent);
    const auto began = std::chrono::steady_clock::now();
    for (int question = 0; question < 1000; ++question)
        on.ask();

    EXPECT_LT(std::chrono::steady_clock::now() - began, patience);
    on.settle();
}

TEST_F(AccessibleBrowserPagesTest, mayGoWhileAPageIsRead)
{
    on.browser.offer({{.name = "Page - Browser", .url = "https://example.com/"}});
    int heard = 0;
    {
        AccessibleBrowserPages pages(
            on.mainThread, on.clock, on.queue, [this] { return on.active; });
        const auto hearing = pages.observeChanges([&] { ++heard; });
        pages.currentURL("org.chromium.Chromium", "");
    }
    on.settle();

    EXPECT_EQ(heard, 0);
}

} // namespace
} // namespace brindlex
