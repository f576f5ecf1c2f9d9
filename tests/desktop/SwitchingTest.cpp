#include "desktop/ProgramDesk.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Alpha writes German, Beta Russian; Gamma has no rule.
const std::vector<SwitchingRules::Rule> twoRules{{"Alpha", german}, {"Beta", russian}};

TEST(Switching, followsTheApplicationInFront)
{
    ProgramDesk desk;
    desk.applyRules(twoRules);
    TypingWindow alpha(desk.windows, "Alpha");
    TypingWindow beta(desk.windows, "Beta");
    TypingWindow gamma(desk.windows, "Gamma");
    ASSERT_TRUE(desk.windows.activate(gamma.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_EQ(keyboardGroup(desk.server), usGroup);

    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    desk.input.type("z;");
    EXPECT_TRUE(alpha.receives("yö")) << alpha.text();

    ASSERT_TRUE(desk.windows.activate(beta.window()));
    EXPECT_TRUE(desk.usesGroup(russianGroup)) << program.report();
    desk.input.type("ghbdtn");
    EXPECT_TRUE(beta.receives("привет")) << beta.text();

    ASSERT_TRUE(desk.windows.activate(gamma.window()));
    EXPECT_TRUE(desk.keepsGroup(russianGroup));
}

TEST(Switching, appliesToTheApplicationThatIsInFrontAtTheStart)
{
    ProgramDesk desk;
    desk.applyRules(twoRules);
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    const RunningProgram program(desk.desktop);

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
}

TEST(Switching, letsTheUsersChoiceStandUntilTheContextChanges)
{
    ProgramDesk desk;
    desk.applyRules(twoRules);
    TypingWindow alpha(desk.windows, "Alpha");
    TypingWindow beta(desk.windows, "Beta");
    TypingWindow gamma(desk.windows, "Gamma");
    ASSERT_TRUE(desk.windows.activate(gamma.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    ASSERT_TRUE(desk.usesGroup(germanGroup)) << program.report();

    chooseKeyboardGroup(desk.server, usGroup);
    EXPECT_TRUE(desk.keepsGroup(usGroup));
    ASSERT_TRUE(desk.windows.activate(gamma.window()));
    ASSERT_TRUE(desk.keepsGroup(usGroup));
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(desk.keepsGroup(usGroup)) << "An application without a rule is no other context.";
    desk.input.type("z");
    EXPECT_TRUE(alpha.receives("z")) << alpha.text();

    ASSERT_TRUE(desk.windows.activate(beta.window()));
    EXPECT_TRUE(desk.usesGroup(russianGroup));
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
}

TEST(Switching, doesNothingWhenItIsTurnedOff)
{
    ProgramDesk desk;
    SwitchingRules rules{.enabled = false};
    rules.applications = {{identifierOf("Alpha"), german}};
    desk.files.writePreferences(rules.preferences());
    const TypingWindow alpha(desk.windows, "Alpha");
    const TypingWindow gamma(desk.windows, "Gamma");
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(desk.keepsGroup(usGroup));
}

TEST(Switching, followsRulesThatAreChangedWhileItRuns)
{
    ProgramDesk desk;
    desk.files.writePreferences(SwitchingRules{.enabled = false}.preferences());
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_TRUE(desk.keepsGroup(usGroup));
    ASSERT_TRUE(eventually([&] { return desk.files.readPreferences().contains("mouseConfig"); }))
        << program.report();

    auto preferences = desk.files.readPreferences();
    const SwitchingRules rules{.applications = {{identifierOf("Beta"), russian}}};
    preferences.update(rules.preferences());
    desk.files.writePreferences(preferences);
    const TypingWindow beta(desk.windows, "Beta");
    ASSERT_TRUE(desk.windows.activate(beta.window()));

    EXPECT_TRUE(desk.usesGroup(russianGroup)) << program.report();
}

TEST(Switching, saysInTheLogThatASourceIsNotThere)
{
    ProgramDesk desk;
    desk.applyRules({{"Alpha", "xkb:fr::fra"}});
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(program.logs("Failed to select xkb:fr::fra for com.example.Alpha"))
        << program.report();
    EXPECT_TRUE(desk.keepsGroup(usGroup));
}

} // namespace
} // namespace brindlex
