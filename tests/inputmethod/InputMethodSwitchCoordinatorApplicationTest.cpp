#include "inputmethod/InputMethodSwitchCoordinatorFixture.h"

namespace brindlex {
namespace {

TEST_F(InputMethodSwitchCoordinatorTest, takesTheNameOfAnApplicationFromItsBundle)
{
    computer.bundles.install("/apps/mail.desktop", {"mail", "Mail & News", "Mail", {}});
    auto mail = application(2, "mail");
    mail.bundlePath = "/apps/mail.desktop";
    computer.applications.bringToFront(mail);
    start();

    computer.inputSources.userSelects(german);
    computer.mainThread.runUntilIdle();

    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].app, (AppIdentifier{"mail", "Mail & News", {}}));
}

TEST_F(InputMethodSwitchCoordinatorTest, fallsBackToWhatTheRunningApplicationSays)
{
    auto broken = application(2, "broken");
    broken.bundlePath = "/apps/gone.desktop";
    broken.localizedName = {};
    computer.applications.bringToFront(broken);
    start();

    computer.inputSources.userSelects(german);
    computer.mainThread.runUntilIdle();

    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].app, (AppIdentifier{"broken", "broken", {}}));
}

TEST_F(InputMethodSwitchCoordinatorTest, takesTheApplicationInFrontBeforeOthersOfItsIdentifier)
{
    computer.applications.launch({ProcessIdentity{2}, "mail", {}, "Mail behind"});
    computer.applications.bringToFront({ProcessIdentity{3}, "mail", {}, "Mail in front"});
    start();

    computer.inputSources.userSelects(german);
    computer.mainThread.runUntilIdle();

    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].app, (AppIdentifier{"mail", "Mail in front", {}}));
}

TEST_F(InputMethodSwitchCoordinatorTest, takesTheFirstRunningApplicationOfAnIdentifierNotInFront)
{
    computer.applications.launch({ProcessIdentity{2}, "mail", {}, "First mail"});
    computer.applications.launch({ProcessIdentity{3}, "mail", {}, "Second mail"});
    start();

    coordinator->dispatch(SwitchEvent::AppActivated{"mail"});

    EXPECT_EQ(coordinator->state().learning,
        (SwitchState::LearningSession{{"mail", "First mail", {}}, us}));
}

TEST_F(InputMethodSwitchCoordinatorTest, knowsAnApplicationThatDoesNotRunByItsIdentifierAlone)
{
    start();

    coordinator->dispatch(SwitchEvent::AppActivated{"gone"});

    EXPECT_EQ(
        coordinator->state().learning, (SwitchState::LearningSession{{"gone", "gone", {}}, us}));
}

} // namespace
} // namespace brindlex
