#include "platform/IconRendering.h"

#include "platform/linux/applications/QtIconRendering.h"
#include "platform/simulated/SimulatedIconRendering.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// A drawing of a red square, as programs bring them.
const std::string redSquare = R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">
<rect width="8" height="8" fill="#ff0000"/></svg>)";

class SimulatedPictures {
public:
    IconRendering& icons() { return icons_; }

    std::filesystem::path makePicture()
    {
        icons_.pictures["/picture"] = "picture";
        return "/picture";
    }
    std::filesystem::path makeOther() { return "/text"; }
    std::filesystem::path installApplication()
    {
        icons_.shownForApplications["/pad.app"] = "shown";
        return "/pad.app";
    }

private:
    SimulatedIconRendering icons_;
};

class DesktopPictures {
public:
    IconRendering& icons() { return icons_; }

    std::filesystem::path makePicture() { return made("picture.svg", redSquare); }
    std::filesystem::path makeOther() { return made("text.png", "no picture"); }
    std::filesystem::path installApplication()
    {
        const auto apps = folder_.path() / "icons/Theme/48x48/apps";
        std::filesystem::create_directories(apps);
        write(apps / "pad.svg", redSquare);
        return made("pad.desktop", "[Desktop Entry]\nType=Application\nName=Pad\nIcon=pad\n");
    }

private:
    std::filesystem::path made(const std::string& name, const std::string& content)
    {
        write(folder_.path() / name, content);
        return folder_.path() / name;
    }

    TemporaryFolder folder_;
    DesktopEntries entries_{{folder_.path()}, {}};
    QtIconRendering icons_{entries_};
};

template <typename Pictures>
class IconRenderingContract : public testing::Test {
protected:
    Pictures pictures;
};

using AllPictures = testing::Types<SimulatedPictures, DesktopPictures>;
TYPED_TEST_SUITE(IconRenderingContract, AllPictures);

TYPED_TEST(IconRenderingContract, drawsThePictureInAFile)
{
    EXPECT_TRUE(this->pictures.icons().pictureInFile(this->pictures.makePicture()));
}

TYPED_TEST(IconRenderingContract, drawsNothingOfAnythingElse)
{
    EXPECT_EQ(this->pictures.icons().pictureInFile(this->pictures.makeOther()), std::nullopt);
    EXPECT_EQ(this->pictures.icons().pictureInFile("/no/such/file"), std::nullopt);
    EXPECT_EQ(this->pictures.icons().pictureInFile("/"), std::nullopt);
    EXPECT_EQ(this->pictures.icons().pictureOfApplication("/no/such/program"), std::nullopt);
}

TYPED_TEST(IconRenderingContract, drawsWhatTheDesktopShowsForAnApplication)
{
    const auto application = this->pictures.installApplication();
    EXPECT_TRUE(this->pictures.icons().pictureOfApplication(application));
}

} // namespace
} // namespace brindlex
