#include "support/processes/RunningProgram.h"

#include "support/basics/Eventually.h"

#include <algorithm>
#include <csignal>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto timeToEnd = 10s;

std::vector<std::string> command(
    const std::filesystem::path& program, const std::vector<std::string>& arguments)
{
    std::vector<std::string> command{program};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

} // namespace

std::filesystem::path programFile()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path() / "brindlex";
}

RunningProgram::RunningProgram(const VirtualDesktop& desktop,
    const std::vector<std::string>& arguments, const std::filesystem::path& program)
    : desktop_(desktop), files_(desktop), linesBefore_(files_.logLines().size()),
      process_({
          .command = command(program, arguments),
          .output = desktop.outputFolder() / "brindlex",
      })
{
}

std::optional<ProcessEnd> RunningProgram::quit()
{
    process_.signal(SIGTERM);
    return process_.waitForEnd(timeToEnd);
}

void RunningProgram::kill()
{
    process_.signal(SIGKILL);
    process_.waitForEnd(timeToEnd);
}

bool RunningProgram::logs(const std::string& beginning) const
{
    const auto isThere = [&] {
        const auto all = messages();
        return std::any_of(all.begin(), all.end(),
            [&](const auto& message) { return message.starts_with(beginning); });
    };
    // A program that has ended writes nothing more.
    return eventually([&] { return isThere() || !process_.isRunning(); }) && isThere();
}

std::vector<std::string> RunningProgram::messages() const
{
    auto messages = files_.logMessages();
    const auto old = std::min(linesBefore_, messages.size());
    messages.erase(messages.begin(), messages.begin() + static_cast<std::ptrdiff_t>(old));
    return messages;
}

std::string RunningProgram::state() const
{
    constexpr std::size_t most = 20;
    const auto lines = files_.logLines();
    std::string text = "--- program " + std::to_string(process())
        + (process_.isRunning() ? " runs" : " has ended") + "; the end of its log:\n";
    for (auto line = lines.size() - std::min(most, lines.size()); line < lines.size(); ++line)
        text += lines[line] + "\n";
    return text;
}

std::string RunningProgram::report() const
{
    std::string text = "--- log of the program\n";
    for (const auto& line : files_.logLines())
        text += line + "\n";
    return text + desktop_.output();
}

} // namespace brindlex
