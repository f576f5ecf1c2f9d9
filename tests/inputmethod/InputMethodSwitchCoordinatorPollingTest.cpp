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
    EXPECT_EQ(desktop.mainThread.timers(), 0u);

    desktop.applications.bringToFront(application(2, browser));
    desktop.mainThread.advance(0.01);
    EXPECT_EQ(desktop.mainThread.timers(), 1u);
    EXPECT_EQ(selected(), us);

    desktop.browserPages.setPage(browser, "https://www.example.de/seite");
    desktop.mainThread.advance(0.78);
    EXPECT_EQ(selected(), us);
    desktop.mainThread.advance(0.02);
    EXPECT_EQ(selected(), german);

    coordinator->dispatch(SwitchEvent::AppActivated{browser});
    desktop.mainThread.advance(0.01);
    EXPECT_EQ(desktop.mainThread.timers(), 1u) << "a live timer is kept";

    desktop.applications.bringToFront(application(1, "editor"));
    desktop.mainThread.advance(0.01);
    EXPECT_EQ(desktop.mainThread.timers(), 0u);
}

TEST_F(InputMethodSwitchCoordinatorTest, looksAtOnceWhenAPageHasBeenReadBesideTheMainThread)
{
    change([](auto& config) {
        config.domainRulesEnabled = true;
        config.domainRules = {{Uuid::random(), "example.de", german}};
    });
    desktop.browserPages.setPage(browser, "https://example.de/");
    start();

    desktop.applications.bringToFront(application(2, browser));
    desktop.mainThread.runUntilIdle();
    EXPECT_EQ(selected(), us) << "a page that was not read yet is an unknown one";
    desktop.mainThread.advance(0.002);

    EXPECT_EQ(selected(), german);
}

TEST_F(InputMethodSwitchCoordinatorTest, asksForThePageAtOnceAndThenEvery800Milliseconds)
{
    change([](auto& config) { config.domainRulesEnabled = true; });
    start();
    const auto asked = [&] { return desktop.browserPages.scripts().size(); };

    coordinator->dispatch(SwitchEvent::AppActivated{browser});
    EXPECT_EQ(asked(), 1u);
    desktop.mainThread.advance(0.7995);
    EXPECT_EQ(asked(), 1u);
    desktop.mainThread.advance(0.001);
    EXPECT_EQ(asked(), 2u);
    desktop.mainThread.advance(0.7985);
    EXPECT_EQ(asked(), 2u);
    desktop.mainThread.advance(0.001);
    EXPECT_EQ(asked(), 3u);
}

TEST_F(InputMethodSwitchCoordinatorTest, pollsFromWhenWebsiteRulesAreTurnedOnUntilTheyAreTurnedOff)
{
    desktop.applications.bringToFront(application(2, browser));
    start();
    EXPECT_EQ(desktop.mainThread.timers(), 0u);

    change([](auto& config) { config.domainRulesEnabled = true; });
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::observingWithBrowserPolling);
    desktop.mainThread.advance(0.01);
    EXPECT_EQ(desktop.mainThread.timers(), 1u);
    const auto writes = desktop.defaults.writes().size();
    change([](auto& config) { config.showHUD = false; });
    EXPECT_EQ(desktop.defaults.writes().size(), writes + 1) << "of the rules alone";

    change([](auto& config) { config.domainRulesEnabled = false; });
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::observing);
    EXPECT_EQ(desktop.mainThread.timers(), 0u);
}

TEST_F(InputMethodSwitchCoordinatorTest, doesNotHearOfPagesOnceNoBrowserIsInFront)
{
    change([](auto& config) { config.domainRulesEnabled = true; });
    desktop.applications.bringToFront(application(2, browser));
    start();
    desktop.browserPages.setBusy(true);
    desktop.browserPages.setPage(browser, "https://example.de/");
    desktop.mainThread.advance(0.81);
    desktop.applications.bringToFront(application(1, "editor"));
    const auto writes = desktop.defaults.writes().size();

    desktop.browserPages.setBusy(false);
    desktop.mainThread.advance(1);

    EXPECT_EQ(desktop.defaults.writes().size(), writes) << "each event writes";
}

} // namespace
} // namespace brindlex
