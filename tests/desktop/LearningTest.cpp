#include "desktop/LearnedSamples.h"
#include "desktop/ProgramDesk.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// Changes the layout in the application in front as a user does, and waits until that is learned.
testing::AssertionResult teaches(
    const ProgramDesk& desk, const std::string& className, int group, std::size_t sample)
{
    chooseKeyboardGroup(desk.server, group);
    if (eventually([&] { return samples(desk.files, className).size() == sample; }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << samples(desk.files, className).size() << " samples";
}

TEST(Learning, actsAfterTenEqualChoices)
{
    ProgramDesk desk;
    desk.files.writePreferences(SwitchingRules{.smart = true}.preferences());
    TypingWindow alpha(desk.windows, "Alpha");
    TypingWindow gamma(desk.windows, "Gamma");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    for (std::size_t round = 1; round <= 10; ++round) {
        ASSERT_TRUE(teaches(desk, "Alpha", germanGroup, round)) << program.report();
        ASSERT_TRUE(desk.windows.activate(gamma.window()));
        ASSERT_TRUE(desk.keepsGroup(germanGroup));
        ASSERT_TRUE(teaches(desk, "Gamma", usGroup, round)) << program.report();
        ASSERT_TRUE(desk.windows.activate(alpha.window()));
        if (round < 10) {
            ASSERT_TRUE(desk.keepsGroup(usGroup)) << "after " << round;
        }
    }

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    desk.input.type("z");
    EXPECT_TRUE(alpha.receives("y")) << alpha.text();
    EXPECT_EQ(samples(desk.files, "Alpha").size(), 10u);
}

TEST(Learning, doesNotTakeItsOwnChangesForTheUsers)
{
    ProgramDesk desk;
    desk.applyRules({{"Alpha", german}, {"Beta", russian}});
    const TypingWindow alpha(desk.windows, "Alpha");
    const TypingWindow beta(desk.windows, "Beta");
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    for (int round = 0; round < 10; ++round) {
        ASSERT_TRUE(desk.windows.activate(alpha.window()));
        ASSERT_TRUE(desk.usesGroup(germanGroup)) << program.report();
        ASSERT_TRUE(desk.windows.activate(beta.window()));
        ASSERT_TRUE(desk.usesGroup(russianGroup)) << program.report();
    }

    EXPECT_TRUE(throughout(300ms, [&] {
        return samples(desk.files, "Alpha").empty() && samples(desk.files, "Beta").empty();
    }));
}

TEST(Learning, outlivesBeingKilled)
{
    ProgramDesk desk;
    desk.applyRules({});
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    std::size_t learned = 0;

    for (int round = 0; round < 8; ++round) {
        RunningProgram program(desk.desktop);
        ASSERT_TRUE(program.launches()) << program.report();
        ASSERT_TRUE(teaches(desk, "Alpha", 1 + round % 2, ++learned)) << program.report();
        // The next choice may be lost; the file and what it holds may not.
        chooseKeyboardGroup(desk.server, usGroup);
        throughout(std::chrono::milliseconds{round}, [] { return true; });
        program.kill();
        const auto kept = samples(desk.files, "Alpha").size();
        ASSERT_GE(kept, learned) << contentOf(desk.files.preferences());
        ASSERT_LE(kept, learned + 1);
        learned = kept;
        chooseKeyboardGroup(desk.server, usGroup);
    }
}

TEST(LearningInTime, isOnDiskWithinATenthOfASecond)
{
    ProgramDesk desk;
    desk.applyRules({});
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    chooseKeyboardGroup(desk.server, germanGroup);
    eventually([] { return false; }, 100ms);
    program.kill();

    EXPECT_EQ(samples(desk.files, "Alpha"), std::vector<std::string>{german}) << program.report();
}

} // namespace
} // namespace brindlex
