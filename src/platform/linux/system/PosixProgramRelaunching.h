#pragma once

#include "platform/ProgramRelaunching.h"

#include <filesystem>
#include <functional>
#include <string>

namespace brindlex {

/// Starts the program's file in a session of its own, without arguments: what was asked of this
/// instance at its start is not asked of the new one.
///
/// Its first window comes to the front by an identifier of a startup that says when the user asked
/// for it (Startup Notification Protocol 0.1). This process does not wait for the new one, as it is
/// to end.
class PosixProgramRelaunching : public ProgramRelaunching {
public:
    /// Makes such an identifier for this moment; empty where there is none.
    using StartupIdentifier = std::function<std::string()>;

    PosixProgramRelaunching(std::filesystem::path program, StartupIdentifier identifier);

    void relaunch(Finished finished) override;

private:
    const std::filesystem::path program_;
    const StartupIdentifier identifier_;
};

} // namespace brindlex
