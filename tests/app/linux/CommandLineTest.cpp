#include "app/linux/CommandLine.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class CommandLineTest : public testing::Test {
protected:
    using Any = CommandLine::Any;
    using Run = CommandLine::Run;
    using Print = CommandLine::Print;
    using Refuse = CommandLine::Refuse;

    Any read(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), "/usr/bin/brindlex");
        return readCommandLine(std::move(arguments), program);
    }

    static Any refusal(const std::string& problem)
    {
        return Refuse{"brindlex: " + problem + "\nTry 'brindlex --help' for more information.\n"};
    }

    ProgramBundle program{.name = "Brindlex", .shortVersion = "0.1.0", .commit = "0123456789ab"};
};

TEST_F(CommandLineTest, runsTheProgram)
{
    EXPECT_EQ(read({}), Any(Run{false}));
    EXPECT_EQ(read({"--"}), Any(Run{false}));
    EXPECT_EQ(readCommandLine({}, program), Any(Run{false}));
}

TEST_F(CommandLineTest, saysThatTheDesktopStartedItAtLogin)
{
    EXPECT_EQ(read({"--started-at-login"}), Any(Run{true}));
    EXPECT_EQ(read({"--started"}), Any(Run{true}));
}

TEST_F(CommandLineTest, printsTheVersionOnItsFirstLine)
{
    EXPECT_EQ(read({"--version"}), Any(Print{"brindlex 0.1.0\nBuilt from commit 0123456789ab.\n"}));
    program.commit.clear();
    EXPECT_EQ(read({"--version"}), Any(Print{"brindlex 0.1.0\n"}));
}

TEST_F(CommandLineTest, printsAllOptionsAsHelp)
{
    const auto help = std::get<Print>(read({"--help"})).text;
    EXPECT_TRUE(help.starts_with("Usage: brindlex [OPTION]...\n"));
    for (const auto* option : {"--help", "--version", "--started-at-login"})
        EXPECT_NE(help.find(option), std::string::npos) << option;
    EXPECT_EQ(read({"--started-at-login", "--help", "--nonsense"}), Any(Print{help}));
}

TEST_F(CommandLineTest, refusesWhatItDoesNotKnow)
{
    EXPECT_EQ(read({"--nonsense"}), refusal("unrecognized option '--nonsense'"));
    EXPECT_EQ(read({"--help=more"}), refusal("unrecognized option '--help=more'"));
    EXPECT_EQ(read({"--nonsense", "--help"}), refusal("unrecognized option '--nonsense'"));
    EXPECT_EQ(read({"-x"}), refusal("invalid option -- 'x'"));
    EXPECT_EQ(read({"-hv"}), refusal("invalid option -- 'h'"));
    EXPECT_EQ(read({"file"}), refusal("extra operand 'file'"));
    EXPECT_EQ(read({"--started-at-login", "file"}), refusal("extra operand 'file'"));
    EXPECT_EQ(read({""}), refusal("extra operand ''"));
    EXPECT_EQ(read({"--", "--help"}), refusal("extra operand '--help'"));
}

} // namespace
} // namespace brindlex
