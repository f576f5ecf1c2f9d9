#include "platform/linux/applications/DesktopEntry.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace brindlex {
namespace {

TEST(DesktopEntry, readsTheKeysOfItsGroup)
{
    EXPECT_EQ(parseDesktopEntry("# A comment\n"
                                "[Desktop Entry]\n"
                                "Type=Application\n"
                                "Name = Pad\n"
                                "Name[de]=Block\n"
                                "Name[fr]=Bloc\n"
                                "Icon=pad\n"
                                "Exec=/usr/bin/pad --new %U\r\n"
                                "StartupWMClass=PadWindow\n"
                                "NoDisplay=true\n"
                                "Terminal=true\n"
                                "[Desktop Action new]\n"
                                "Name=New\n"
                                "Exec=other\n",
                  {"de_AT", "de", "fr"}),
        (DesktopEntry{.name = "Pad",
            .localizedName = "Block",
            .icon = "pad",
            .windowClass = "PadWindow",
            .program = "pad",
            .isInMenus = false,
            .runsInTerminal = true}));
}

TEST(DesktopEntry, isNoneWithoutTheTypeOfAnApplication)
{
    EXPECT_EQ(parseDesktopEntry("", {}), std::nullopt);
    EXPECT_EQ(parseDesktopEntry("Type=Application\n", {}), std::nullopt);
    EXPECT_EQ(parseDesktopEntry("[Desktop Entry]\nType=Link\n", {}), std::nullopt);
    EXPECT_EQ(parseDesktopEntry("[Desktop Entry]\nName=Pad\n", {}), std::nullopt);
    EXPECT_EQ(
        parseDesktopEntry("[Desktop Entry]\nType=Application\nHidden=true\n", {}), std::nullopt);
}

TEST(DesktopEntry, hasEmptyFieldsForMissingKeys)
{
    EXPECT_EQ(parseDesktopEntry("[Desktop Entry]\nType=Application", {"de"}), DesktopEntry());
}

TEST(DesktopEntry, takesTheFirstOfTwoEqualKeys)
{
    const auto entry
        = parseDesktopEntry("[Desktop Entry]\nType=Application\nName=One\nName=Two\n", {});
    EXPECT_EQ(entry.value().name, "One");
}

TEST(DesktopEntry, replacesBytesThatAreNotText)
{
    const auto entry
        = parseDesktopEntry("[Desktop Entry]\nType=Application\nName=\xff\xfe Pad\n=\n[]\n", {});
    EXPECT_EQ(entry.value().name, "\uFFFD\uFFFD Pad");
}

TEST(DesktopEntry, resolvesEscapes)
{
    const auto entry = parseDesktopEntry(
        "[Desktop Entry]\nType=Application\nName=a\\sb\\nc\\td\\\\e\\xf\\\n", {});
    EXPECT_EQ(entry.value().name, "a b\nc\td\\exf\\");
}

TEST(DesktopEntry, findsTheProgramBehindItsWrappers)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", ""},
        {"pad", "pad"},
        {"/usr/bin/pad %U", "pad"},
        {"\"/opt/My Pad/pad\" %F", "pad"},
        {"\"/opt/a \\\"b\\\"/pad\"", "pad"},
        {"env LANG=C -u X /usr/bin/pad", "X"},
        {"env BAMF_DESKTOP_FILE_HINT=/x/firefox_firefox.desktop /snap/bin/firefox %u", "firefox"},
        {"/usr/bin/flatpak run --branch=stable --command=pad org.example.Pad @@u %U @@", "pad"},
        {"flatpak run org.example.Pad", ""},
        {"env", ""},
        {"\"unfinished quote", "unfinished quote"},
        {"   ", ""},
    };
    for (const auto& [exec, program] : rows)
        EXPECT_EQ(programOf(exec), program) << exec;
}

TEST(DesktopEntry, isReadFromPlainFilesOfReasonableSizeOnly)
{
    const TemporaryFolder folder;
    const std::string text = "[Desktop Entry]\nType=Application\nName=Pad\n";
    const auto file = folder.path() / "pad.desktop";
    write(file, text);
    EXPECT_EQ(readDesktopEntry(file, {}),
        (DesktopEntry{.path = file, .name = "Pad", .localizedName = "Pad"}));

    write(file, text + std::string(1024 * 1024 - text.size(), '#'));
    EXPECT_TRUE(readDesktopEntry(file, {}));
    write(file, text + std::string(1024 * 1024 - text.size() + 1, '#'));
    EXPECT_FALSE(readDesktopEntry(file, {}));

    const auto pipe = folder.path() / "pipe.desktop";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(readDesktopEntry(pipe, {}));
    EXPECT_FALSE(readDesktopEntry(folder.path(), {}));
    EXPECT_FALSE(readDesktopEntry(folder.path() / "missing.desktop", {}));
    EXPECT_FALSE(readDesktopEntry("/dev/zero", {}));
}

} // namespace
} // namespace brindlex
