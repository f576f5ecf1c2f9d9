#include "platform/linux/applications/AutostartEntry.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class AutostartEntryTest : public testing::Test {
protected:
    using Status = LoginItem::Status;

    /// The status of an entry that starts the program, with these lines more.
    Status statusWith(const std::string& lines) const
    {
        return autostartStatus(
            "[Desktop Entry]\nType=Application\nExec=/usr/bin/program\n" + lines, desktop);
    }

    const AutostartProgram program{"Program", "/usr/bin/program"};
    const AutostartDesktop desktop{
        {"ubuntu", "GNOME"}, [](const std::string& name) { return name == "/usr/bin/program"; }};
    const std::string plain = "[Desktop Entry]\nType=Application\nName=Program\n"
                              "Exec=/usr/bin/program --started-at-login\n"
                              "TryExec=/usr/bin/program\n";
};

TEST_F(AutostartEntryTest, startsTheProgram)
{
    for (const auto* lines : {"", "Hidden=false\n", "X-GNOME-Autostart-enabled=true\n",
             "OnlyShowIn=KDE;GNOME;\n", "NotShowIn=KDE;\n", "TryExec=/usr/bin/program\n"})
        EXPECT_EQ(statusWith(lines), Status::enabled) << lines;
}

TEST_F(AutostartEntryTest, isOffByWhatADesktopWritesIntoIt)
{
    for (const auto* lines : {"X-GNOME-Autostart-enabled=false\n", "OnlyShowIn=KDE;XFCE;\n",
             "OnlyShowIn=\n", "NotShowIn=KDE;GNOME\n", "TryExec=/usr/bin/missing\n"})
        EXPECT_EQ(statusWith(lines), Status::requiresApproval) << lines;
}

TEST_F(AutostartEntryTest, isNoneWhenItIsHiddenOrStartsNothing)
{
    EXPECT_EQ(statusWith("Hidden=true\n"), Status::notRegistered);
    for (const auto* text : {"", "nonsense", "[Desktop Entry]\nType=Application\n",
             "[Desktop Entry]\nType=Application\nExec=\n", "[Desktop Entry]\nType=Link\nExec=a\n"})
        EXPECT_EQ(autostartStatus(text, desktop), Status::notRegistered) << text;
}

TEST_F(AutostartEntryTest, isMadeFromNothing)
{
    EXPECT_EQ(autostartEntryOn("", program, desktop), plain);
    EXPECT_EQ(autostartEntryOn("nonsense", program, desktop), plain);
    EXPECT_EQ(autostartStatus(plain, desktop), Status::enabled);
}

TEST_F(AutostartEntryTest, keepsWhatTheUserHasWritten)
{
    const std::string own = "# mine\n[Desktop Entry]\nName=Mine\nName[de]=Meins\nExec=old\n"
                            "X-GNOME-Autostart-Delay=5\nNotShowIn=KDE;\n[More]\nA=1\n";
    EXPECT_EQ(autostartEntryOn(own, program, desktop),
        "# mine\n[Desktop Entry]\nType=Application\nTryExec=/usr/bin/program\nName=Mine\n"
        "Name[de]=Meins\nExec=/usr/bin/program --started-at-login\nX-GNOME-Autostart-Delay=5\n"
        "NotShowIn=KDE;\n[More]\nA=1\n");
}

TEST_F(AutostartEntryTest, losesWhatSwitchesItOff)
{
    for (const auto* lines :
        {"Hidden=true\n", "OnlyShowIn=KDE;\n", "NotShowIn=GNOME;\n", "TryExec=/usr/bin/missing\n"})
        EXPECT_EQ(autostartEntryOn(plain + lines, program, desktop), plain) << lines;
    EXPECT_EQ(autostartEntryOn(plain + "X-GNOME-Autostart-enabled=false\n", program, desktop),
        plain + "X-GNOME-Autostart-enabled=true\n");
}

TEST_F(AutostartEntryTest, namesAProgramInAnyPlace)
{
    const AutostartProgram odd{"Program", "/opt/a \"b\"\\100%/$program"};
    const AutostartDesktop anywhere{
        {}, [&](const std::string& name) { return name == odd.file.string(); }};
    const auto text = autostartEntryOn("", odd, anywhere);
    EXPECT_EQ(autostartStatus(text, anywhere), Status::enabled);
    EXPECT_NE(text.find("\nExec=\"/opt/a \\\\\"b\\\\\"\\\\\\\\100%%/\\\\$program\" --started"),
        std::string::npos)
        << text;
}

TEST_F(AutostartEntryTest, isHiddenWhenItIsSwitchedOff)
{
    const auto off = autostartEntryOff(plain);
    EXPECT_EQ(autostartStatus(off, desktop), Status::notRegistered);
    EXPECT_EQ(autostartEntryOff(off), off);
    EXPECT_EQ(autostartEntryOn(off, program, desktop), plain);
}

} // namespace
} // namespace brindlex
