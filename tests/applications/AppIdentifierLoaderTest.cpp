#include "applications/AppIdentifierLoader.h"

#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "platform/simulated/SimulatedApplicationBundles.h"
#include "platform/simulated/SimulatedIconRendering.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class AppIdentifierLoaderTest : public testing::Test {
protected:
    Result<AppIdentifier, LoaderError> load(const ApplicationBundle& bundle)
    {
        bundles.install("/apps/Pad.app", bundle);
        return loader.load("/apps/Pad.app");
    }

    SimulatedApplicationBundles bundles;
    SimulatedIconRendering icons;
    SimulatedAppGroupContainer container;
    AppIdentifierLoader loader{bundles, icons, container};
};

TEST_F(AppIdentifierLoaderTest, takesTheDisplayNameFirst)
{
    const auto app
        = load({.identifier = "org.example.Pad", .displayName = "My Pad", .name = "Pad Name"});
    ASSERT_TRUE(app);
    EXPECT_EQ(*app, (AppIdentifier{"org.example.Pad", "My Pad", std::nullopt}));
}

TEST_F(AppIdentifierLoaderTest, takesTheNameWithoutADisplayName)
{
    const auto app = load({.identifier = "org.example.Pad", .name = "Pad Name"});
    ASSERT_TRUE(app);
    EXPECT_EQ(*app, (AppIdentifier{"org.example.Pad", "Pad Name", std::nullopt}));
}

TEST_F(AppIdentifierLoaderTest, takesTheFileNameWithoutAnyName)
{
    const auto app = load({.identifier = "org.example.Pad"});
    ASSERT_TRUE(app);
    EXPECT_EQ(*app, (AppIdentifier{"org.example.Pad", "Pad", std::nullopt}));
    bundles.install("/apps/Other.app/", {.identifier = "org.example.Other"});
    EXPECT_EQ(loader.load("/apps/Other.app/").value().displayName, "Other");
}

TEST_F(AppIdentifierLoaderTest, replacesBytesOfAFileNameThatAreNotText)
{
    bundles.install("/apps/P\xFF.app", {.identifier = "org.example.Pad"});
    EXPECT_EQ(loader.load("/apps/P\xFF.app").value().displayName, "P\uFFFD");
}

TEST_F(AppIdentifierLoaderTest, takesTheBundlesOwnIconWhereNoneCanBeMade)
{
    const auto app = load({.identifier = "org.example.Pad",
        .displayName = "Pad",
        .iconFile = "/apps/Pad.app/Contents/Resources/Pad.icns"});
    ASSERT_TRUE(app);
    EXPECT_EQ(*app,
        (AppIdentifier{"org.example.Pad", "Pad", "/apps/Pad.app/Contents/Resources/Pad.icns"}));
}

TEST_F(AppIdentifierLoaderTest, makesAnIconThatTheFileManagerMayRead)
{
    const TemporaryFolder folder;
    container.setFolder(folder.path());
    icons.pictures["/apps/pad.icns"] = "64 by 64 of Pad";

    const auto app
        = load({.identifier = "org.example.Pad", .name = "Pad", .iconFile = "/apps/pad.icns"});

    const auto icon = folder.path() / "Config/AppIcons/org.example.Pad.png";
    EXPECT_EQ(app, (AppIdentifier{"org.example.Pad", "Pad", icon.string()}));
    EXPECT_EQ(contentOf(icon), "64 by 64 of Pad");
}

TEST_F(AppIdentifierLoaderTest, hasNoIconWhereThereIsNoneAndNoneCanBeMade)
{
    const TemporaryFolder folder;
    container.setFolder(folder.path());
    EXPECT_EQ(load({.identifier = "org.example.Pad", .name = "Pad"}),
        (AppIdentifier{"org.example.Pad", "Pad", std::nullopt}));
}

TEST_F(AppIdentifierLoaderTest, failsWithoutABundle)
{
    const auto app = loader.load("/apps/Missing.app");
    ASSERT_FALSE(app);
    EXPECT_EQ(app.error(), LoaderError::unreadableBundle);
}

TEST_F(AppIdentifierLoaderTest, failsWithoutAnIdentifier)
{
    const auto app = load({.displayName = "Pad", .name = "Pad"});
    ASSERT_FALSE(app);
    EXPECT_EQ(app.error(), LoaderError::missingBundleIdentifier);
}

} // namespace
} // namespace brindlex
