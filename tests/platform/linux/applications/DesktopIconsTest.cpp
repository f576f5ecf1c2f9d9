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

TEST(DesktopIcons, areFoundInAnyTheme)
{
    const TemporaryFolder folder;
    const auto bySize = folder.path() / "icons/Adwaita/48x48/apps";
    const auto byKind = folder.path() / "icons/Breeze/apps/64";
    const auto ofPrograms = folder.path() / "icons/Breeze/mimetypes/32";
    for (const auto& path : {bySize, byKind, ofPrograms})
        std::filesystem::create_directories(path);
    write(bySize / "pad.png", "x");
    write(byKind / "pad.svg", "x");
    write(byKind / "tool.svg", "x");
    write(ofPrograms / "any.svg", "x");

    const std::vector folders{folder.path() / "missing", folder.path()};
    EXPECT_EQ(themeIconFile("pad", folders), bySize / "pad.png");
    EXPECT_EQ(themeIconFile("tool", folders), byKind / "tool.svg");
    EXPECT_EQ(themeIconFile("any", folders), ofPrograms / "any.svg");
    for (const auto* icon : {"", "missing", "../apps/pad", "/"})
        EXPECT_EQ(themeIconFile(icon, folders), std::nullopt) << icon;
}

} // namespace
} // namespace brindlex
