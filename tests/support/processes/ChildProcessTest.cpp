#include "support/processes/ChildProcess.h"

#include "support/basics/Eventually.h"
#include "support/basics/ScopedEnvironment.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

TEST(ChildProcess, tellsHowItEnded)
{
    EXPECT_EQ(run({.command = {"sh", "-c", "exit 3"}}, 5s), (ProcessEnd{3, {}}));
    EXPECT_EQ(run({.command = {"sh", "-c", "kill -9 $$"}}, 5s), (ProcessEnd{{}, SIGKILL}));
    EXPECT_EQ(run({.command = {"no-such-program"}}, 5s), (ProcessEnd{127, {}}));
    EXPECT_EQ(run({.command = {"sleep", "60"}}, 20ms), std::nullopt);
}

TEST(ChildProcess, isStoppedWithItsChildrenEvenWhenTheyDoNotWantTo)
{
    const TemporaryFolder folder;
    const auto output = folder.path() / "output";
    pid_t grandchild = 0;
    {
        const ChildProcess child({
            .command
            = {"sh", "-c", "trap '' TERM; sh -c 'trap \"\" TERM; echo $$; sleep 60' & wait"},
            .output = output,
        });
        ASSERT_TRUE(eventually([&] { return child.output().ends_with('\n'); }));
        grandchild = std::stoi(child.output());
        EXPECT_EQ(kill(grandchild, 0), 0);
    }
    EXPECT_TRUE(eventually(
        [&] { return contentOf("/proc/" + std::to_string(grandchild) + "/cmdline").empty(); }));
}

TEST(ChildProcess, getsTheVariablesPutOverThoseOfTheTest)
{
    const TemporaryFolder folder;
    ScopedEnvironment environment;
    environment.set("KEPT", "kept");
    environment.set("CHANGED", "before");
    environment.set("TAKEN", "taken");

    run({.command = {"sh", "-c", "echo $KEPT $CHANGED ${TAKEN-none}"},
            .output = folder.path() / "output",
            .environment = {{"CHANGED", "after"}, {"TAKEN", ""}}},
        5s);

    EXPECT_EQ(contentOf(folder.path() / "output"), "kept after none\n");
}

} // namespace
} // namespace brindlex
