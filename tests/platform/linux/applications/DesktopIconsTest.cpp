#include "platform/linux/applications/DesktopIcons.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(DesktopIcons, areFoundByPathAndByName)
{
    const TemporaryFolder folder;
    const auto large = folder.path() / "icons/hicolor/256x256/apps";
    const auto small = folder.path() / "icons/hicolor/48x48/apps";
    const auto pixmaps = folder.path() / "pixmaps";
    for (const auto& path : {large, small, pixmaps})
        std::filesystem::create_directories(path);
    write(large / "pad.png", "x");
    write(small / "pad.png", "x");
    write(small / "org.example.Tool.svg", "x");
    write(pixmaps / "old.xpm", "x");

    const std::vector folders{folder.path()};
    EXPECT_EQ(iconFile("pad", folders), large / "pad.png");
    EXPECT_EQ(iconFile("org.example.Tool", folders), small / "org.example.Tool.svg");
    EXPECT_EQ(iconFile("old", folders), pixmaps / "old.xpm");
    EXPECT_EQ(iconFile("old.xpm", folders), pixmaps / "old.xpm");
    EXPECT_EQ(iconFile((pixmaps / "old.xpm").string(), {}), pixmaps / "old.xpm");
    for (const auto* icon : {"", "missing", "/no/such/icon.png", "../pixmaps/old", "/"})
        EXPECT_EQ(iconFile(icon, folders), std::nullopt) << icon;
}

} // namespace
} // namespace brindlex
