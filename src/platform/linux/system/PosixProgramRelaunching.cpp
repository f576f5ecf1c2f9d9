#include "platform/linux/system/PosixProgramRelaunching.h"

#include "platform/linux/system/FreshStart.h"

#include <map>
#include <utility>

namespace brindlex {

PosixProgramRelaunching::PosixProgramRelaunching(
    std::filesystem::path program, StartupIdentifier identifier)
    : program_(std::move(program)), identifier_(std::move(identifier))
{
}

void PosixProgramRelaunching::relaunch(Finished finished)
{
    std::map<std::string, std::string> variables;
    if (const auto identifier = identifier_(); !identifier.empty())
        variables["DESKTOP_STARTUP_ID"] = identifier;
    const auto process = startFresh({program_.string()}, variables);
    if (process)
        finished(Done{});
    else
        finished(fail(process.error()));
}

} // namespace brindlex
