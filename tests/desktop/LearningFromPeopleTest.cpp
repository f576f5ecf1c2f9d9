#include "desktop/LearnedSamples.h"
#include "desktop/ProgramDesk.h"
#include "support/daemons/FcitxDaemon.h"
#include "support/hardware/LayoutGuard.h"
#include "support/hardware/LayoutKeeper.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Sources = std::vector<std::string>;

/// Fcitx 5 as it is installed: each window has a method of its own.
TEST(LearningFromPeople, learnsNothingFromWindowsWithMethodsOfTheirOwn)
{
    ProgramDesk desk({.keyboardLayouts = "us"});
    desk.applyRules({});
    FcitxDaemon daemon(desk.desktop, {"keyboard-us", "pinyin"});
    const TypingWindow alpha(desk.windows, "Alpha");
    const TypingWindow beta(desk.windows, "Beta");
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.logs("Input sources come from Fcitx 5")) << program.report();
    const auto learned = [&](const char* className) { return samples(desk.files, className); };
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    ASSERT_TRUE(throughout(500ms, [&] { return daemon.current() == "keyboard-us"; }));
    ASSERT_TRUE(daemon.select("pinyin"));
    ASSERT_TRUE(eventually([&] { return learned("Alpha") == Sources{"fcitx5:pinyin"}; }))
        << program.report();

    for (int walk = 0; walk < 11; ++walk) {
        const bool isBeta = walk % 2 == 0;
        ASSERT_TRUE(desk.windows.activate(isBeta ? beta.window() : alpha.window()));
        const std::string own = isBeta ? "keyboard-us" : "pinyin";
        ASSERT_TRUE(eventually([&] { return daemon.current() == own; })) << walk;
        // What is typed right away is no choice of an input method.
        desk.input.showHand();
        ASSERT_TRUE(throughout(500ms, [&] { return daemon.current() == own; })) << walk;
    }

    EXPECT_EQ(learned("Alpha"), Sources{"fcitx5:pinyin"}) << program.report();
    EXPECT_EQ(learned("Beta"), Sources());
}

/// A desk with a program that keeps a layout for each window, as kbdd and the plugin of Xfce do.
class LayoutsOfWindows : public testing::Test {
protected:
    LayoutsOfWindows() { desk_.applyRules({{"Alpha", german}}); }

    bool comesToRestIn(int group) const
    {
        return eventually([&] { return desk_.keepsGroup(group); });
    }

    ProgramDesk desk_;
    LayoutKeeper keeper_{50ms};
};

TEST_F(LayoutsOfWindows, areNotLearnedAndGiveWayToRules)
{
    const TypingWindow alpha(desk_.windows, "Alpha");
    const TypingWindow gamma(desk_.windows, "Gamma");
    const RunningProgram program(desk_.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_TRUE(desk_.windows.activate(gamma.window()));
    ASSERT_TRUE(comesToRestIn(usGroup));
    chooseKeyboardGroup(desk_.server, russianGroup);
    ASSERT_TRUE(eventually([&] { return samples(desk_.files, "Gamma") == Sources{russian}; }))
        << program.report();

    for (int walk = 0; walk < 3; ++walk) {
        ASSERT_TRUE(desk_.windows.activate(alpha.window()));
        EXPECT_TRUE(comesToRestIn(germanGroup)) << program.report();
        ASSERT_TRUE(desk_.windows.activate(gamma.window()));
        EXPECT_TRUE(comesToRestIn(russianGroup)) << program.report();
    }

    EXPECT_EQ(samples(desk_.files, "Alpha"), Sources());
    EXPECT_EQ(samples(desk_.files, "Gamma"), Sources{russian});
}

TEST_F(LayoutsOfWindows, leaveAUsersOverrideInForce)
{
    const TypingWindow alpha(desk_.windows, "Alpha");
    const TypingWindow gamma(desk_.windows, "Gamma");
    const RunningProgram program(desk_.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_TRUE(desk_.windows.activate(alpha.window()));
    ASSERT_TRUE(comesToRestIn(germanGroup)) << program.report();

    chooseKeyboardGroup(desk_.server, russianGroup);
    ASSERT_TRUE(eventually([&] { return samples(desk_.files, "Alpha") == Sources{russian}; }))
        << program.report();
    ASSERT_TRUE(desk_.windows.activate(gamma.window()));
    ASSERT_TRUE(desk_.windows.activate(alpha.window()));

    EXPECT_TRUE(comesToRestIn(russianGroup)) << program.report();
}

TEST(LearningFromPeople, learnsForAWindowThatSaysNothingAndNotForTheOneBefore)
{
    constexpr auto namelessApplication = "exe:brindlex_desktop_tests";
    ProgramDesk desk;
    // By its rule the program shows that it has noticed the window, before the hand chooses.
    desk.files.writePreferences(
        SwitchingRules{.applications = {{namelessApplication, russian}}}.preferences());
    const PlainWindow alpha(desk.server, {.wmClass = wmClass("Alpha"), .title = "Alpha"});
    const PlainWindow nameless(desk.server, {});
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    ASSERT_TRUE(desk.windows.activate(nameless.window()));
    ASSERT_TRUE(desk.usesGroup(russianGroup)) << program.report();
    chooseKeyboardGroup(desk.server, germanGroup);

    EXPECT_TRUE(eventually([&] {
        return samplesOf(desk.files, namelessApplication) == Sources{german};
    })) << program.report();
    EXPECT_EQ(samples(desk.files, "Alpha"), Sources());
}

TEST(UndoneSelections, areNeitherShownNorLearnedAndTriedAgainLater)
{
    ProgramDesk desk;
    desk.applyRules({{"Alpha", german}, {"Beta", russian}});
    const PlainWindow alpha(desk.server, {.wmClass = wmClass("Alpha"), .title = "Alpha"});
    const PlainWindow beta(desk.server, {.wmClass = wmClass("Beta"), .title = "Beta"});
    const PlainWindow gamma(desk.server, {.wmClass = wmClass("Gamma"), .title = "Gamma"});
    ASSERT_TRUE(desk.windows.activate(gamma.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    const LayoutGuard shell(usGroup, 200ms);

    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(program.logs("The desktop undoes the selection of xkb:de::deu"))
        << program.report();
    EXPECT_EQ(shell.timesUndone(), 2);
    EXPECT_TRUE(
        eventually([&] { return desk.windows.unmanagedOf(program.process()).empty(); }, 600ms))
        << "An overlay would stay for 800 ms.";
    EXPECT_TRUE(desk.keepsGroup(usGroup));
    EXPECT_EQ(samples(desk.files, "Alpha"), Sources());

    ASSERT_TRUE(desk.windows.activate(beta.window()));
    ASSERT_TRUE(eventually([&] { return shell.timesUndone() == 4; })) << program.report();
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(eventually([&] { return shell.timesUndone() == 6; })) << program.report();
}

} // namespace
} // namespace brindlex
