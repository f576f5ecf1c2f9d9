#include "platform/linux/system/UnixSignals.h"

#include "support/basics/Eventually.h"
#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"

#include <gtest/gtest.h>

#include <csignal>

namespace brindlex {
namespace {

class UnixSignalsTest : public testing::Test {
protected:
    void start(const std::vector<std::string>& command)
    {
        child.emplace(ChildProcess::Start{.command = command, .output = folder.path() / "output"});
        ASSERT_TRUE(eventually([&] { return child->output() == "ready\n"; })) << child->output();
    }
    bool isPrinted(const std::string& output)
    {
        return eventually([&] { return child->output() == output; });
    }

    TemporaryFolder folder;
    std::optional<ChildProcess> child;
};

TEST_F(UnixSignalsTest, turnEachSignalThatAsksForTheEndIntoACall)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        write(folder.path() / "output", "");
        start({PLATFORM_PROCESS, "signals", "obedient", "5000"});
        child->signal(signal);
        EXPECT_EQ(child->waitForEnd(usualDeadline), (ProcessEnd{3, {}}));
        EXPECT_EQ(child->output(), "ready\n" + std::to_string(signal) + "\n");
    }
}

TEST_F(UnixSignalsTest, turnTheNextOnesOfEachKindAsWell)
{
    start({PLATFORM_PROCESS, "signals", "stubborn", "1000000"});
    child->signal(SIGTERM);
    ASSERT_TRUE(isPrinted("ready\n15\n"));
    child->signal(SIGINT);
    ASSERT_TRUE(isPrinted("ready\n15\n2\n"));
    child->signal(SIGTERM);
    EXPECT_TRUE(isPrinted("ready\n15\n2\n15\n"));
    EXPECT_TRUE(child->isRunning());
}

TEST_F(UnixSignalsTest, letASignalAfterThePatienceEndAProgramThatDoesNot)
{
    start({PLATFORM_PROCESS, "signals", "stubborn", "100"});
    child->signal(SIGTERM);
    ASSERT_TRUE(isPrinted("ready\n15\n"));
    EXPECT_TRUE(eventually([&] {
        child->signal(SIGINT);
        return !child->isRunning();
    }));
    EXPECT_EQ(child->end(), (ProcessEnd{{}, SIGINT}));
}

TEST_F(UnixSignalsTest, leaveAnIgnoredSignalIgnored)
{
    start({"nohup", PLATFORM_PROCESS, "signals", "obedient", "5000"});
    child->signal(SIGHUP);
    child->signal(SIGTERM);
    EXPECT_EQ(child->waitForEnd(usualDeadline), (ProcessEnd{3, {}}));
    EXPECT_EQ(child->output(), "ready\n15\n");
}

TEST_F(UnixSignalsTest, putBackWhatWasInForce)
{
    struct sigaction before = {};
    ::sigaction(SIGTERM, nullptr, &before);
    {
        const UnixSignals signals([](int) {});
        struct sigaction during = {};
        ::sigaction(SIGTERM, nullptr, &during);
        EXPECT_NE(during.sa_handler, before.sa_handler);
    }
    struct sigaction after = {};
    ::sigaction(SIGTERM, nullptr, &after);
    EXPECT_EQ(after.sa_handler, before.sa_handler);
}

} // namespace
} // namespace brindlex
