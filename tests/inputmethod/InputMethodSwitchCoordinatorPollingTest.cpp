#include "inputmethod/InputMethodSwitchCoordinatorFixture.h"

namespace brindlex {
namespace {

TEST_F(InputMethodSwitchCoordinatorTest, pollsABrowserEvery800MillisecondsWhileItIsInFront)
{
    change([](auto& config) {
        config.domainRulesEnabled = true;
        config.domainRules = {{Uuid::random(), "example.de", german}};
    });
    start();
    EXPECT_EQ(computer.mainThread.timers(), 0u);

    computer.applications.bringToFront(application(2, browser));
    computer.mainThread.advance(0.01);
    EXPECT_EQ(computer.mainThread.timers(), 1u);
    EXPECT_EQ(selected(), us);

    computer.browserPages.setPage(browser, "https://www.example.de/seite");
    computer.mainThread.advance(0.78);
    EXPECT_EQ(selected(), us);
    computer.mainThread.advance(0.02);
    EXPECT_EQ(selected(), german);

    coordinator->dispatch(SwitchEvent::AppActivated{browser});
    computer.mainThread.advance(0.01);
    EXPECT_EQ(computer.mainThread.timers(), 1u) << "a live timer is kept";

    computer.applications.bringToFront(application(1, "editor"));
    computer.mainThread.advance(0.01);
    EXPECT_EQ(computer.mainThread.timers(), 0u);
}

TEST_F(InputMethodSwitchCoordinatorTest, looksAtOnceWhenAPageHasBeenReadBesideTheMainThread)
{
    change([](auto& config) {
        config.domainRulesEnabled = true;
        config.domainRules = {{Uuid::random(), "example.de", german}};
    });
    computer.browserPages.setPage(browser, "https://example.de/");
    start();

    computer.applications.bringToFront(application(2, browser));
    computer.mainThread.runUntilIdle();
    EXPECT_EQ(selected(), us) << "a page that was not read yet is an unknown one";
    computer.mainThread.advance(0.002);

    EXPECT_EQ(selected(), german);
}

TEST_F(InputMethodSwitchCoordinatorTest, asksForThePageAtOnceAndThenEvery800Milliseconds)
{
    change([](auto& config) { config.domainRulesEnabled = true; });
    start();
    const auto asked = [&] { return computer.browserPages.scripts().size(); };

    coordinator->dispatch(SwitchEvent::AppActivated{browser});
    EXPECT_EQ(asked(), 1u);
    computer.mainThread.advance(0.7995);
    EXPECT_EQ(asked(), 1u);
    computer.mainThread.advance(0.001);
    EXPECT_EQ(asked(), 2u);
    computer.mainThread.advance(0.7985);
    EXPECT_EQ(asked(), 2u);
    computer.mainThread.advance(0.001);
    EXPECT_EQ(asked(), 3u);
}

TEST_F(InputMethodSwitchCoordinatorTest, pollsFromWhenWebsiteRulesAreTurnedOnUntilTheyAreTurnedOff)
{
    computer.applications.bringToFront(application(2, browser));
    start();
    EXPECT_EQ(computer.mainThread.timers(), 0u);

    change([](auto& config) { config.domainRulesEnabled = true; });
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::observingWithBrowserPolling);
    computer.mainThread.advance(0.01);
    EXPECT_EQ(computer.mainThread.timers(), 1u);
    const auto writes = computer.defaults.writes().size();
    change([](auto& config) { config.showHUD = false; });
    EXPECT_EQ(computer.defaults.writes().size(), writes + 1) << "of the rules alone";

    change([](auto& config) { config.domainRulesEnabled = false; });
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::observing);
    EXPECT_EQ(computer.mainThread.timers(), 0u);
}

TEST_F(InputMethodSwitchCoordinatorTest, doesNotHearOfPagesOnceNoBrowserIsInFront)
{
    change([](auto& config) { config.domainRulesEnabled = true; });
    computer.applications.bringToFront(application(2, browser));
    start();
    computer.browserPages.setBusy(true);
    computer.browserPages.setPage(browser, "https://example.de/");
    computer.mainThread.advance(0.81);
    computer.applications.bringToFront(application(1, "editor"));
    const auto writes = computer.defaults.writes().size();

    computer.browserPages.setBusy(false);
    computer.mainThread.advance(1);

    EXPECT_EQ(computer.defaults.writes().size(), writes) << "each event writes";
}

} // namespace
} // namespace brindlex
