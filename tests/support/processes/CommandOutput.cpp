#include "support/processes/CommandOutput.h"

#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto longestCommand = 60s;

} // namespace

CommandOutput outputOf(
    const std::vector<std::string>& command, const std::map<std::string, std::string>& environment)
{
    const TemporaryFolder folder;
    const auto output = folder.path() / "output";
    const auto end
        = run({.command = command, .output = output, .environment = environment}, longestCommand);
    return {end ? end->code : std::nullopt, contentOf(output)};
}

} // namespace brindlex
