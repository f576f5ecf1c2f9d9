#include "platform/ProcessLaunching.h"

#include "platform/linux/system/PosixProcessLaunching.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/simulated/SimulatedProcessLaunching.h"
#include "support/basics/TemporaryFolder.h"
#include "support/loops/LoopUntil.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

class SimulatedLauncher {
public:
    ProcessLaunching& launching() { return launching_; }

    /// A program that can be started.
    std::filesystem::path program() const { return "/usr/bin/program"; }
    std::filesystem::path missingProgram()
    {
        launching_.refusal = "No such file or directory";
        return "/nowhere/program";
    }

    /// What the programs that were started have been given, each text with an end of line.
    std::string arguments() const
    {
        std::string lines;
        for (const auto& launch : launching_.launches)
            for (const auto& argument : launch.arguments)
                lines += argument + "\n";
        return lines;
    }

private:
    SimulatedProcessLaunching launching_;
};

class PosixComputer {
public:
    PosixComputer()
    {
        write(program(), "#!/bin/sh\nprintf '%s\\n' \"$@\" >>'" + output().string() + "'\n");
        std::filesystem::permissions(program(), std::filesystem::perms::owner_all);
    }

    ProcessLaunching& launching() { return launching_; }

    std::filesystem::path program() const { return folder_.path() / "program ü"; }
    std::filesystem::path missingProgram() const { return "/nowhere/program"; }
    std::string arguments() const { return contentOf(output()); }

private:
    std::filesystem::path output() const { return folder_.path() / "output"; }

    TemporaryFolder folder_;
    QtMainThread mainThread_;
    PosixProcessLaunching launching_{mainThread_};
};

template <typename Computer>
class ProcessLaunchingContract : public testing::Test {
protected:
    ProcessLaunching::Failed note()
    {
        return [this](const std::string& reason) { reasons.push_back(reason); };
    }

    Computer computer;
    std::vector<std::string> reasons;
};

using Computers = testing::Types<SimulatedLauncher, PosixComputer>;
class ComputerNames {
public:
    template <typename Computer>
    static std::string GetName(int)
    {
        return std::is_same_v<Computer, PosixComputer> ? "Posix" : "Simulated";
    }
};
TYPED_TEST_SUITE(ProcessLaunchingContract, Computers, ComputerNames);

TYPED_TEST(ProcessLaunchingContract, startsAProgramWithItsArgumentsAsTheyAre)
{
    this->computer.launching().launch(
        this->computer.program(), {"a b", "", "$HOME \"'`", "季度 ü"}, this->note());

    EXPECT_TRUE(loopUntil([&] {
        return this->computer.arguments() == "a b\n\n$HOME \"'`\n季度 ü\n";
    })) << this->computer.arguments();
    EXPECT_EQ(this->reasons, std::vector<std::string>());
}

TYPED_TEST(ProcessLaunchingContract, startsEachOfSeveral)
{
    for (const std::string argument : {"one", "two", "three"})
        this->computer.launching().launch(this->computer.program(), {argument}, this->note());

    const auto isThere = [&](const std::string& line) {
        return this->computer.arguments().find(line) != std::string::npos;
    };
    EXPECT_TRUE(loopUntil([&] {
        return isThere("one\n") && isThere("two\n") && isThere("three\n");
    })) << this->computer.arguments();
}

TYPED_TEST(ProcessLaunchingContract, reportsWhyAProgramCannotBeStarted)
{
    this->computer.launching().launch(this->computer.missingProgram(), {"one"}, this->note());

    EXPECT_TRUE(loopUntil([&] { return !this->reasons.empty(); }));
    EXPECT_EQ(this->reasons, std::vector<std::string>{"No such file or directory"});
    EXPECT_EQ(this->computer.arguments(), "");
}

} // namespace
} // namespace brindlex
