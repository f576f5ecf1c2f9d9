#include "platform/LoginItem.h"

#include "platform/linux/applications/XdgLoginItem.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SimulatedLogin {
public:
    LoginItem& item() { return item_; }
    void switchOffInTheSettings() { item_.set(LoginItem::Status::requiresApproval); }
    void refuseChanges() { item_.refusal = "Read-only file system"; }

private:
    SimulatedLoginItem item_;
};

class XdgLogin {
public:
    LoginItem& item() { return item_; }
    void switchOffInTheSettings()
    {
        write(file(), contentOf(file()) + "X-GNOME-Autostart-enabled=false\n");
    }
    /// Not even root can make a file in a file.
    void refuseChanges()
    {
        std::filesystem::remove_all(file().parent_path());
        write(file().parent_path(), "");
    }

private:
    std::filesystem::path file() const
    {
        return folder_.path() / "autostart" / "org.example.Program.desktop";
    }

    TemporaryFolder folder_;
    XdgLoginItem item_{{folder_.path()}, "org.example.Program", {"Program", "/bin/sh"}, {"XFCE"}};
};

template <typename Login>
class LoginItemContract : public testing::Test {
protected:
    using Status = LoginItem::Status;

    Login login;
    LoginItem& item = login.item();
};

using Logins = testing::Types<SimulatedLogin, XdgLogin>;
TYPED_TEST_SUITE(LoginItemContract, Logins);

TYPED_TEST(LoginItemContract, isNotRegisteredAtFirst)
{
    EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
}

TYPED_TEST(LoginItemContract, isRegisteredAndUnregistered)
{
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(this->item.registerProgram());
        EXPECT_EQ(this->item.status(), LoginItem::Status::enabled);
        EXPECT_TRUE(this->item.unregisterProgram());
        EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
    }
}

TYPED_TEST(LoginItemContract, mayBeAskedForWhatIsThere)
{
    EXPECT_TRUE(this->item.unregisterProgram());
    EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
    EXPECT_TRUE(this->item.registerProgram());
    EXPECT_TRUE(this->item.registerProgram());
    EXPECT_EQ(this->item.status(), LoginItem::Status::enabled);
}

TYPED_TEST(LoginItemContract, isSwitchedOffByTheSettingsAndOnByTheProgram)
{
    EXPECT_TRUE(this->item.registerProgram());
    this->login.switchOffInTheSettings();
    EXPECT_EQ(this->item.status(), LoginItem::Status::requiresApproval);

    EXPECT_TRUE(this->item.registerProgram());
    EXPECT_EQ(this->item.status(), LoginItem::Status::enabled);
}

TYPED_TEST(LoginItemContract, isUnregisteredWhileTheSettingsSwitchItOff)
{
    EXPECT_TRUE(this->item.registerProgram());
    this->login.switchOffInTheSettings();

    EXPECT_TRUE(this->item.unregisterProgram());
    EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
}

TYPED_TEST(LoginItemContract, saysWhyItCannotBeRegistered)
{
    this->login.refuseChanges();

    const auto result = this->item.registerProgram();
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().empty());
    EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
}

} // namespace
} // namespace brindlex
