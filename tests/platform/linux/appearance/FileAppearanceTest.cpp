#include "platform/linux/appearance/FileAppearance.h"

#include "platform/linux/appearance/GtkAppearance.h"
#include "support/basics/TemporaryFolder.h"
#include "support/loops/QtLoop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string dark = "[Settings]\ngtk-theme-name=Arc-Dark\n";

TEST(FileAppearance, followsTheFile)
{
    QtLoop loop;
    const TemporaryFolder folder;
    const auto file = folder.path() / "settings.ini";
    write(file, dark);
    const FileAppearance appearance(file, gtkFileAppearance);
    const auto becomes = [&](const StatedAppearance& expected) {
        return loop.runUntil([&] { return appearance.current().value() == expected; });
    };
    EXPECT_EQ(appearance.current().value(), StatedAppearance{.isDark = true});

    write(file, "[Settings]\ngtk-theme-name=Arc\n");
    EXPECT_TRUE(becomes({.isDark = false}));
    std::filesystem::remove(file);
    EXPECT_TRUE(becomes({}));
    write(file, dark);
    EXPECT_TRUE(becomes({.isDark = true}));
    write(file, dark + std::string(1U << 18, '\n'));
    EXPECT_TRUE(becomes({})) << "no desktop writes so much";
}

} // namespace
} // namespace brindlex
