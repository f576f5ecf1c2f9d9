#include "platform/EventPermissions.h"

#include "platform/linux/input/X11EventPermissions.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SimulatedUser {
public:
    EventPermissions& permissions() { return permissions_; }
    void allowAccessibility(bool allows)
    {
        permissions_.isTrusted = allows;
        permissions_.notify();
    }
    void allowInputMonitoring(bool allows)
    {
        permissions_.canListen = allows;
        permissions_.notify();
    }

private:
    SimulatedEventPermissions permissions_;
};

/// A user at an X server.
class UserOfX11 {
public:
    EventPermissions& permissions() { return permissions_; }
    void allowAccessibility(bool allows) { set("allowsAccessibility", allows); }
    void allowInputMonitoring(bool allows) { set("allowsInputMonitoring", allows); }

private:
    void set(const std::string& key, bool allows) { defaults_.set(key, allows); }

    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .sessionBus = false}};
    SimulatedClock time_;
    SimulatedMainThread mainThread_{time_};
    SimulatedUserDefaults defaults_;
    X11InputStream stream_{mainThread_};
    X11EventPermissions permissions_{stream_, defaults_};
};

template <typename User>
class EventPermissionsContract : public testing::Test {
protected:
    EventPermissionState ask() { return EventPermissionState::ask(user.permissions()); }

    User user;
    int notified = 0;
    Subscription observation
        = user.permissions().observeAccessibilityChanges([this] { ++notified; });
};

using Users = testing::Types<SimulatedUser, UserOfX11>;
TYPED_TEST_SUITE(EventPermissionsContract, Users);

TYPED_TEST(EventPermissionsContract, areGrantedUnlessTheUserForbids)
{
    EXPECT_EQ(this->ask(), (EventPermissionState{true, true}));
    EXPECT_EQ(this->notified, 0);
}

TYPED_TEST(EventPermissionsContract, areAskedForAnewEachTime)
{
    this->user.allowAccessibility(false);
    EXPECT_EQ(this->ask(), (EventPermissionState{false, true}));
    this->user.allowAccessibility(true);
    this->user.allowInputMonitoring(false);
    EXPECT_EQ(this->ask(), (EventPermissionState{true, false}));
    this->user.allowInputMonitoring(true);
    EXPECT_EQ(this->ask(), (EventPermissionState{true, true}));
}

TYPED_TEST(EventPermissionsContract, tellOfAChange)
{
    this->user.allowAccessibility(false);
    EXPECT_EQ(this->notified, 1);
    this->user.allowAccessibility(true);
    EXPECT_EQ(this->notified, 2);
}

TYPED_TEST(EventPermissionsContract, haveAnObstacleWhileTheyAreMissing)
{
    auto& permissions = this->user.permissions();
    const PermissionObstacle refused{PermissionObstacle::Reason::refused};
    EXPECT_EQ(permissions.obstacle(EventPermission::accessibility), std::nullopt);

    this->user.allowAccessibility(false);
    EXPECT_EQ(permissions.obstacle(EventPermission::accessibility), refused);
    EXPECT_EQ(permissions.obstacle(EventPermission::inputMonitoring), std::nullopt);

    this->user.allowAccessibility(true);
    this->user.allowInputMonitoring(false);
    EXPECT_EQ(permissions.obstacle(EventPermission::accessibility), std::nullopt);
    EXPECT_EQ(permissions.obstacle(EventPermission::inputMonitoring), refused);
}

TYPED_TEST(EventPermissionsContract, areGivenWhenTheyAreRequested)
{
    this->user.allowAccessibility(false);
    this->user.allowInputMonitoring(false);

    this->user.permissions().request(EventPermission::accessibility);
    EXPECT_EQ(this->ask(), (EventPermissionState{true, false}));
    EXPECT_EQ(this->notified, 3);

    this->user.permissions().request(EventPermission::inputMonitoring);
    EXPECT_EQ(this->ask(), (EventPermissionState{true, true}));
    EXPECT_EQ(this->notified, 4);
}

TYPED_TEST(EventPermissionsContract, tellNothingWhenOneThatIsThereIsRequested)
{
    this->user.permissions().request(EventPermission::inputMonitoring);

    EXPECT_EQ(this->notified, 0);
}

TYPED_TEST(EventPermissionsContract, tellNobodyWhoHasEndedTheSubscription)
{
    this->observation.reset();
    this->user.allowAccessibility(false);

    EXPECT_EQ(this->notified, 0);
}

} // namespace
} // namespace brindlex
