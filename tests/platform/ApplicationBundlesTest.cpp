#include "platform/ApplicationBundles.h"

#include "platform/linux/applications/DesktopApplicationBundles.h"
#include "platform/simulated/SimulatedApplicationBundles.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Applications installed on a simulated computer.
class SimulatedInstallation {
public:
    ApplicationBundles& bundles() { return bundles_; }

    std::filesystem::path install(const std::string& identifier, const ApplicationBundle& bundle)
    {
        const auto path = "/Applications/" + identifier + ".app";
        bundles_.install(path, bundle);
        return path;
    }
    std::filesystem::path makeIcon() { return "/Applications/icon.png"; }
    void remove(const std::filesystem::path& path) { bundles_.remove(path); }

private:
    SimulatedApplicationBundles bundles_;
};

/// Applications installed as desktop entries.
class DesktopInstallation {
public:
    DesktopInstallation() { std::filesystem::create_directories(folder_.path() / "applications"); }

    ApplicationBundles& bundles() { return bundles_; }

    std::filesystem::path install(const std::string& identifier, const ApplicationBundle& bundle)
    {
        const auto path = folder_.path() / "applications" / (identifier + ".desktop");
        write(path,
            "[Desktop Entry]\nType=Application\nName=" + bundle.name.value_or("")
                + "\nName[de]=" + bundle.displayName.value_or("")
                + "\nIcon=" + bundle.iconFile.value_or("").string() + "\n");
        return path;
    }
    std::filesystem::path makeIcon()
    {
        const auto path = folder_.path() / "icon.png";
        write(path, "icon");
        return path;
    }
    void remove(const std::filesystem::path& path) { std::filesystem::remove(path); }

private:
    TemporaryFolder folder_;
    DesktopEntries entries_{{folder_.path()}, {"de"}};
    DesktopApplicationBundles bundles_{entries_};
};

template <typename Installation>
class ApplicationBundlesContract : public testing::Test {
protected:
    Installation installation;
};

using Installations = testing::Types<SimulatedInstallation, DesktopInstallation>;
TYPED_TEST_SUITE(ApplicationBundlesContract, Installations);

TYPED_TEST(ApplicationBundlesContract, readsWhatAnApplicationSaysOfItself)
{
    const ApplicationBundle bundle{
        "org.example.Pad", "Block", "Pad", this->installation.makeIcon()};
    const auto path = this->installation.install("org.example.Pad", bundle);
    EXPECT_EQ(this->installation.bundles().bundle(path), bundle);
}

TYPED_TEST(ApplicationBundlesContract, hasNothingWhereThereIsNoApplication)
{
    EXPECT_EQ(this->installation.bundles().bundle("/no/such/place"), std::nullopt);
    EXPECT_EQ(this->installation.bundles().bundle(""), std::nullopt);
    EXPECT_EQ(this->installation.bundles().bundle("/"), std::nullopt);
}

TYPED_TEST(ApplicationBundlesContract, noticesThatAnApplicationWasRemoved)
{
    const auto path = this->installation.install(
        "org.example.Pad", {.identifier = "org.example.Pad", .displayName = "Pad", .name = "Pad"});
    EXPECT_TRUE(this->installation.bundles().bundle(path));
    this->installation.remove(path);
    EXPECT_EQ(this->installation.bundles().bundle(path), std::nullopt);
}

TYPED_TEST(ApplicationBundlesContract, listsWhatIsInstalledNow)
{
    EXPECT_TRUE(this->installation.bundles().installed().empty());
    const auto pad = this->installation.install("org.example.Pad",
        {.identifier = "org.example.Pad", .displayName = "Block", .name = "Pad"});
    EXPECT_EQ(this->installation.bundles().installed(),
        (std::vector<InstalledApplication>{{"org.example.Pad", "Block", pad, true}}));

    this->installation.remove(pad);
    EXPECT_TRUE(this->installation.bundles().installed().empty());
}

TEST(DesktopApplicationBundles, haveWhatHasNoEntryByWhatItsWindowsSay)
{
    DesktopInstallation installation;

    EXPECT_EQ(installation.bundles().bundle("wmclass:Strange"),
        (ApplicationBundle{.identifier = "wmclass:Strange", .name = "Strange"}));
    EXPECT_EQ(installation.bundles().bundle("exe:strange:2"),
        (ApplicationBundle{.identifier = "exe:strange:2", .name = "strange:2"}));
}

} // namespace
} // namespace brindlex
