#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"
#include "support/processes/RunningProgram.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// The program with an empty home and without a screen.
class ProgramWithoutADesktop : public testing::Test {
protected:
    std::optional<ProcessEnd> run(const std::string& option, const std::string& redirection = "")
    {
        const ChildProcess process({
            .command = {"sh", "-c", "'" + programFile().string() + "' " + option + redirection},
            .output = output_.path() / "output",
            .environment = {{"HOME", home_.path()}, {"DISPLAY", ""}, {"XDG_CONFIG_HOME", ""},
                {"XDG_DATA_HOME", ""}, {"DBUS_SESSION_BUS_ADDRESS", ""}},
        });
        const auto end = process.waitForEnd(std::chrono::seconds(20));
        printed = process.output();
        EXPECT_EQ(namesIn(home_.path()), std::vector<std::string>{});
        return end;
    }

    std::string printed;

private:
    TemporaryFolder home_;
    TemporaryFolder output_;
};

TEST_F(ProgramWithoutADesktop, printsItsHelp)
{
    EXPECT_EQ(run("--help"), (ProcessEnd{0, {}}));
    EXPECT_TRUE(printed.starts_with("Usage: brindlex [OPTION]...\n")) << printed;
}

TEST_F(ProgramWithoutADesktop, printsItsVersion)
{
    EXPECT_EQ(run("--version", " 2>/dev/null"), (ProcessEnd{0, {}}));
    EXPECT_TRUE(printed.starts_with("brindlex 0.")) << printed;
}

TEST_F(ProgramWithoutADesktop, refusesAnOptionThatItDoesNotKnow)
{
    EXPECT_EQ(run("--nonsense", " >/dev/null"), (ProcessEnd{2, {}}));
    EXPECT_EQ(printed,
        "brindlex: unrecognized option '--nonsense'\n"
        "Try 'brindlex --help' for more information.\n");
}

TEST_F(ProgramWithoutADesktop, saysThatItsWordsCannotBeWritten)
{
    EXPECT_EQ(run("--help", " >/dev/full"), (ProcessEnd{1, {}}));
    EXPECT_EQ(printed, "brindlex: write error: No space left on device\n");
}

} // namespace
} // namespace brindlex
