#include "app/linux/CommandLine.h"

#include "platform/posix/ArgumentPointers.h"

#include <array>
#include <getopt.h>

namespace brindlex {
namespace {

constexpr auto help = R"(Usage: brindlex [OPTION]...
Live in the background of the desktop: switch input sources, extend the mouse.

      --started-at-login  start without bringing a window to the front
      --help              display this help and exit
      --version           output version information and exit

A second start shows the window of the program that runs.
)";

enum Option : int { startedAtLogin = 1, helpOption, versionOption };

constexpr std::array<option, 4> options{{
    {"started-at-login", no_argument, nullptr, startedAtLogin},
    {"help", no_argument, nullptr, helpOption},
    {"version", no_argument, nullptr, versionOption},
    {nullptr, 0, nullptr, 0},
}};

std::string versionText(const ProgramBundle& program)
{
    const auto commit = program.commit.empty() ? "" : "Built from commit " + program.commit + ".\n";
    return "brindlex " + program.shortVersion + "\n" + commit;
}

CommandLine::Refuse refuse(const std::string& problem)
{
    return {"brindlex: " + problem + "\nTry 'brindlex --help' for more information.\n"};
}

/// What the last call of the reader did not understand: a letter, or an option by its name.
CommandLine::Refuse refuseOption(const std::string& argument)
{
    if (argument.starts_with("--"))
        return refuse("unrecognized option '" + argument + "'");
    return refuse("invalid option -- '" + std::string(1, static_cast<char>(optopt)) + "'");
}

} // namespace

CommandLine::Any readCommandLine(std::vector<std::string> arguments, const ProgramBundle& program)
{
    const auto pointers = pointersTo(arguments);
    const auto count = static_cast<int>(arguments.size());
    CommandLine::Run run;
    opterr = 0;
    // The reader begins afresh.
    optind = 0;
    for (int found = 0;
         (found = getopt_long(count, pointers.data(), "+", options.data(), nullptr)) != -1;) {
        if (found == helpOption)
            return CommandLine::Print{help};
        if (found == versionOption)
            return CommandLine::Print{versionText(program)};
        if (found != startedAtLogin)
            return refuseOption(pointers[static_cast<std::size_t>(optind) - 1]);
        run.isStartedAtLogin = true;
    }
    if (optind < count)
        return refuse("extra operand '" + arguments[static_cast<std::size_t>(optind)] + "'");
    return run;
}

} // namespace brindlex
