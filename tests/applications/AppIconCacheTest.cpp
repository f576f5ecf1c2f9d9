#include "applications/AppIconCache.h"

#include "foundation/Uuid.h"
#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "platform/simulated/SimulatedIconRendering.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using Icon = std::optional<fs::path>;

class AppIconCacheTest : public testing::Test {
protected:
    AppIconCacheTest()
    {
        for (const auto& made : {bundle, picture})
            write(made, "x");
        icons.pictures[picture] = "own";
        icons.shownForApplications[bundle] = "shown";
    }

    Icon icon() { return cache.iconOf("org.example.Pad", bundle, picture); }

    /// Whether icons are returned without being drawn once the files they are made of have rested:
    /// the dates of a file have seconds.
    bool isKeptInTheEnd()
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        do {
            icons.drawings.clear();
            icon();
        } while (!icons.drawings.empty() && std::chrono::steady_clock::now() < end);
        return icons.drawings.empty();
    }

    TemporaryFolder folder;
    const fs::path bundle = folder.path() / "pad.app";
    const fs::path picture = folder.path() / "pad.icns";
    const fs::path file = folder.path() / "Config/AppIcons/org.example.Pad.png";
    SimulatedIconRendering icons;
    SimulatedAppGroupContainer container{folder.path()};
    AppIconCache cache{icons, container};
};

TEST(AppIconFileName, keepsWhatIsLetterMarkOrNumberOfAnyScript)
{
    EXPECT_EQ(appIconFileName("org.example-2.My_Pad"), "org.example-2.My_Pad");
    EXPECT_EQ(appIconFileName("wmclass:a/b c"), "wmclass_a_b_c");
    EXPECT_EQ(appIconFileName("..\\\"\n"), "..___");
    EXPECT_EQ(appIconFileName("键盘é\u0301٣Ⅷ🎹"), "键盘é\u0301٣Ⅷ_");
    EXPECT_EQ(appIconFileName("a\xFF"), "a_");
}

TEST(AppIconFileName, isAFreshUuidForAnEmptyIdentifier)
{
    const auto name = appIconFileName("");
    EXPECT_TRUE(Uuid::fromText(name)) << name;
    EXPECT_NE(appIconFileName(""), name);
}

TEST_F(AppIconCacheTest, drawsTheApplicationsOwnPicture)
{
    EXPECT_EQ(icon(), Icon(file));
    EXPECT_EQ(contentOf(file), "own");
}

TEST_F(AppIconCacheTest, drawsWhatTheDesktopShowsWhereThereIsNoPictureOfItsOwn)
{
    icons.pictures.clear();
    EXPECT_EQ(icon(), Icon(file));
    EXPECT_EQ(contentOf(file), "shown");

    fs::remove(file);
    EXPECT_EQ(cache.iconOf("org.example.Pad", bundle, {}), Icon(file));
    EXPECT_EQ(contentOf(file), "shown");
}

TEST_F(AppIconCacheTest, hasNoneWhereNothingCanBeDrawnOrKept)
{
    const auto elsewhere = folder.path() / "other.app";
    EXPECT_EQ(cache.iconOf("org.example.Pad", elsewhere, {}), Icon());
    EXPECT_EQ(cache.iconOf(std::string(300, 'x'), bundle, picture), Icon()) << "No such file name.";
    container.setFolder({});
    EXPECT_EQ(icon(), Icon());
}

TEST_F(AppIconCacheTest, keepsAnIconUntilThePictureOrTheApplicationChanges)
{
    ASSERT_TRUE(isKeptInTheEnd());
    for (const auto& changed : {picture, bundle}) {
        icons.pictures[picture] = "new in " + changed.string();
        write(changed, "another");
        EXPECT_EQ(icon(), Icon(file));
        EXPECT_EQ(contentOf(file), "new in " + changed.string());
        ASSERT_TRUE(isKeptInTheEnd());
    }
}

TEST_F(AppIconCacheTest, drawsAnIconAnewThatWasRemoved)
{
    ASSERT_TRUE(isKeptInTheEnd());
    fs::remove(file);
    EXPECT_EQ(icon(), Icon(file));
    EXPECT_EQ(contentOf(file), "own");
}

} // namespace
} // namespace brindlex
