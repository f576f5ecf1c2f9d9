#include "platform/linux/applications/DesktopEntryText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(DesktopEntryKeys, haveTheValuesOfTheirGroup)
{
    const DesktopEntryKeys keys("[Other]\nKey=other\n [Desktop Entry] \r\n# Key=comment\n"
                                "Key = a\\sb\\\\ \nKey=again\nEmpty=\n[Other]\nMore=1\n"
                                "[Desktop Entry]\nLate=1\n");
    EXPECT_TRUE(keys.hasGroup());
    EXPECT_EQ(keys.value("Key"), "a b\\");
    EXPECT_TRUE(keys.contains("Empty"));
    for (const auto* missing : {"Empty", "More", "Late", "key"})
        EXPECT_EQ(keys.value(missing), "");
    EXPECT_FALSE(DesktopEntryKeys("Key=1\n[desktop entry]\n").hasGroup());
}

TEST(DesktopEntryKeys, haveLists)
{
    const DesktopEntryKeys keys("[Desktop Entry]\nOne=KDE\nTwo=GNOME;X-Cinnamon;\nNone=;\n");
    EXPECT_EQ(keys.list("One"), std::vector<std::string>{"KDE"});
    EXPECT_EQ(keys.list("Two"), (std::vector<std::string>{"GNOME", "X-Cinnamon"}));
    EXPECT_EQ(keys.list("None"), std::vector<std::string>{});
    EXPECT_EQ(keys.list("Missing"), std::vector<std::string>{});
}

TEST(withDesktopEntryKey, replacesALineAndLeavesAllElseToTheLetter)
{
    EXPECT_EQ(withDesktopEntryKey(
                  "# top\n[Desktop Entry]\r\n Exec = a\nName=ü\n\n[Other]\nExec=b", "Exec", "c d"),
        "# top\n[Desktop Entry]\r\nExec=c d\nName=ü\n\n[Other]\nExec=b");
}

TEST(withDesktopEntryKey, addsALineAtTheTop)
{
    EXPECT_EQ(withDesktopEntryKey("[Desktop Entry]\nName=a\n", "Exec", "b"),
        "[Desktop Entry]\nExec=b\nName=a\n");
    EXPECT_EQ(withDesktopEntryKey("[Desktop Entry]", "Exec", "b"), "[Desktop Entry]\nExec=b\n");
}

TEST(withDesktopEntryKey, takesEveryLineOfAKeyAway)
{
    EXPECT_EQ(withDesktopEntryKey(
                  "[Desktop Entry]\nHidden=true\nName=a\nHidden=false\n", "Hidden", std::nullopt),
        "[Desktop Entry]\nName=a\n");
}

TEST(withDesktopEntryKey, leavesATextWithoutTheGroupAlone)
{
    EXPECT_EQ(withDesktopEntryKey("[Other]\nA=1\n", "Exec", "b"), "[Other]\nA=1\n");
    EXPECT_EQ(withDesktopEntryKey("", "Exec", "b"), "");
}

TEST(withDesktopEntryKey, writesAnyValueSoThatItIsReadAgain)
{
    for (const std::string value : {" a  b ", "a\\nb", "a\nb\tc\r", "", " "}) {
        const auto text = withDesktopEntryKey("[Desktop Entry]\n", "Key", value);
        EXPECT_EQ(DesktopEntryKeys(text).value("Key"), value);
    }
}

TEST(quotedForExec, isReadAsTheSameWord)
{
    EXPECT_EQ(quotedForExec("/usr/bin/program"), "/usr/bin/program");
    EXPECT_EQ(quotedForExec("/opt/a b/program"), "\"/opt/a b/program\"");
    EXPECT_EQ(quotedForExec("50%"), "50%%");
    for (const std::string word : {"", "a\"b", "$HOME", "`id`", "a\\b", "a'b", "a;b&c"})
        EXPECT_EQ(execWords(quotedForExec(word) + " --option"),
            (std::vector<std::string>{word, "--option"}));
}

} // namespace
} // namespace brindlex
