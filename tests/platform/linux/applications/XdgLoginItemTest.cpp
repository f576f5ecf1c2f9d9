#include "platform/linux/applications/XdgLoginItem.h"

#include "support/basics/OrdinaryUser.h"
#include "support/basics/ScopedEnvironment.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class XdgLoginItemTest : public testing::Test {
protected:
    using Status = LoginItem::Status;

    std::filesystem::path own() const { return folder.path() / "own/autostart/org.a.desktop"; }
    std::filesystem::path shared() const
    {
        return folder.path() / "shared/autostart/org.a.desktop";
    }

    void install(const std::filesystem::path& file, const std::string& lines = "")
    {
        std::filesystem::create_directories(file.parent_path());
        write(file, "[Desktop Entry]\nType=Application\nExec=/bin/sh\n" + lines);
    }

    TemporaryFolder folder;
    XdgLoginItem item{
        {folder.path() / "own", folder.path() / "shared"}, "org.a", {"A", "/bin/sh"}, {"XFCE"}};
};

TEST_F(XdgLoginItemTest, makesItsFolderForTheUserAlone)
{
    EXPECT_TRUE(item.registerProgram());

    EXPECT_EQ(contentOf(own()),
        "[Desktop Entry]\nType=Application\nName=A\nExec=/bin/sh --started-at-login\n"
        "TryExec=/bin/sh\n");
    EXPECT_EQ(std::filesystem::status(own().parent_path()).permissions(),
        std::filesystem::perms::owner_all);
    EXPECT_EQ(namesIn(own().parent_path()), std::vector<std::string>{"org.a.desktop"});
}

TEST_F(XdgLoginItemTest, hidesItsEntryAndShowsItAgain)
{
    install(own(), "X-Mine=1\n");

    EXPECT_TRUE(item.unregisterProgram());
    EXPECT_EQ(contentOf(own()),
        "[Desktop Entry]\nHidden=true\nType=Application\nExec=/bin/sh\nX-Mine=1\n");

    EXPECT_TRUE(item.registerProgram());
    EXPECT_EQ(item.status(), Status::enabled);
    EXPECT_NE(contentOf(own()).find("X-Mine=1\n"), std::string::npos);
}

TEST_F(XdgLoginItemTest, writesNothingToSwitchOffWhatIsNotThere)
{
    EXPECT_TRUE(item.unregisterProgram());
    EXPECT_FALSE(std::filesystem::exists(own().parent_path()));
}

TEST_F(XdgLoginItemTest, overridesAnEntryOfTheSystem)
{
    install(shared());
    EXPECT_EQ(item.status(), Status::enabled);

    EXPECT_TRUE(item.unregisterProgram());
    EXPECT_EQ(item.status(), Status::notRegistered);
    EXPECT_EQ(contentOf(shared()), "[Desktop Entry]\nType=Application\nExec=/bin/sh\n");
}

TEST_F(XdgLoginItemTest, followsTheFileWithEachQuestion)
{
    install(own());
    EXPECT_EQ(item.status(), Status::enabled);
    install(own(), "OnlyShowIn=KDE;\n");
    EXPECT_EQ(item.status(), Status::requiresApproval);
    install(own(), "OnlyShowIn=XFCE;\n");
    EXPECT_EQ(item.status(), Status::enabled);
    install(own(), "TryExec=no-such-program-anywhere\n");
    EXPECT_EQ(item.status(), Status::requiresApproval);
    install(own(), "TryExec=sh\n");
    EXPECT_EQ(item.status(), Status::enabled);
    std::filesystem::remove(own());
    EXPECT_EQ(item.status(), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, saysWhyAFolderCannotBeWrittenTo)
{
    std::filesystem::create_directories(own().parent_path());
    constexpr auto readable = static_cast<std::filesystem::perms>(0555);
    std::filesystem::permissions(own().parent_path(), readable);
    const OrdinaryUser user(folder.path());

    const auto result = item.registerProgram();

    ASSERT_FALSE(result);
    EXPECT_EQ(result.error(), "Permission denied");
    EXPECT_EQ(item.status(), Status::notRegistered);
    EXPECT_TRUE(namesIn(own().parent_path()).empty());
}

TEST_F(XdgLoginItemTest, isNotRegisteredByWhatIsNoFile)
{
    install(shared());
    std::filesystem::create_directories(own());
    EXPECT_EQ(item.status(), Status::notRegistered);
    EXPECT_FALSE(item.registerProgram());
}

TEST_F(XdgLoginItemTest, isFoundByTheEnvironment)
{
    ScopedEnvironment environment;
    environment.set("XDG_CONFIG_HOME", (folder.path() / "own").string());
    environment.set("XDG_CONFIG_DIRS", (folder.path() / "shared").string());
    environment.set("XDG_CURRENT_DESKTOP", "X-Cinnamon:GNOME");
    install(shared(), "OnlyShowIn=GNOME;\n");

    auto ofUser = XdgLoginItem::ofUser("org.a", {"A", "/bin/sh"});

    EXPECT_EQ(ofUser.status(), Status::enabled);
    EXPECT_TRUE(ofUser.unregisterProgram());
    EXPECT_TRUE(std::filesystem::exists(own()));
}

} // namespace
} // namespace brindlex
