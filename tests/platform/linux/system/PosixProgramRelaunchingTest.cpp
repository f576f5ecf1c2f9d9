#include "platform/linux/system/PosixProgramRelaunching.h"

#include "support/basics/Eventually.h"
#include "support/basics/ScopedEnvironment.h"
#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

class PosixProgramRelaunchingTest : public testing::Test {
protected:
    PosixProgramRelaunchingTest()
    {
        write(program(),
            "#!/bin/sh\nenv >'" + file("environment").string() + "'\necho $$ $# >'"
                + file("process").string() + "'\nexec sleep 100000\n");
        std::filesystem::permissions(program(), std::filesystem::perms::owner_all);
    }
    ~PosixProgramRelaunchingTest() override
    {
        if (hasStarted())
            kill(process(), SIGKILL);
    }

    std::filesystem::path file(const char* name) const { return folder_.path() / name; }
    std::filesystem::path program() const { return file("program"); }
    bool hasStarted() const { return contentOf(file("process")).ends_with("\n"); }
    pid_t process() const { return std::stoi(contentOf(file("process"))); }

    bool hasVariable(const std::string& line) const
    {
        return ("\n" + contentOf(file("environment"))).find("\n" + line + "\n")
            != std::string::npos;
    }

    /// Relaunches from this process.
    void relaunch(const std::string& identifier)
    {
        PosixProgramRelaunching(program(), [&] {
            return identifier;
        }).relaunch([](const Result<Done, std::string>& result) { EXPECT_TRUE(result); });
        ASSERT_TRUE(eventually([&] { return hasStarted(); }));
    }

private:
    TemporaryFolder folder_;
};

TEST_F(PosixProgramRelaunchingTest, givesTheNewInstanceTheEnvironmentAndAnIdentifier)
{
    ScopedEnvironment environment;
    environment.set("BRINDLEX_TEST", "a b=ü");
    environment.set("DESKTOP_STARTUP_ID", "of-this-instance");

    relaunch("brindlex-1_TIME2");

    EXPECT_TRUE(hasVariable("BRINDLEX_TEST=a b=ü"));
    EXPECT_TRUE(hasVariable("DESKTOP_STARTUP_ID=brindlex-1_TIME2"));
    EXPECT_FALSE(hasVariable("DESKTOP_STARTUP_ID=of-this-instance"));
}

TEST_F(PosixProgramRelaunchingTest, doesWithoutAnIdentifier)
{
    ScopedEnvironment environment;
    environment.set("DESKTOP_STARTUP_ID", std::nullopt);

    relaunch("");

    EXPECT_EQ(contentOf(file("environment")).find("DESKTOP_STARTUP_ID"), std::string::npos);
}

TEST_F(PosixProgramRelaunchingTest, givesTheNewInstanceASessionOfItsOwnAndNoArguments)
{
    relaunch("");

    EXPECT_EQ(getsid(process()), process());
    EXPECT_TRUE(contentOf(file("process")).ends_with(" 0\n"));
}

TEST_F(PosixProgramRelaunchingTest, leavesTheNewInstanceThereWhenTheOldOneEnds)
{
    // Its group is killed after its end.
    {
        const ChildProcess old({.command = {PLATFORM_PROCESS, "relaunch", program()}});
        EXPECT_EQ(old.waitForEnd(std::chrono::seconds(20)), (ProcessEnd{0, {}}));
        ASSERT_TRUE(eventually([&] { return hasStarted(); }));
    }

    EXPECT_EQ(kill(process(), 0), 0) << errno;
}

} // namespace
} // namespace brindlex
