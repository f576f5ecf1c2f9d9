#pragma once

#include "platform/ProcessLaunching.h"

namespace brindlex {

/// Starts programs in a session of their own, with no descriptor of this program but the standard
/// streams, and with the signals as a new process has them.
///
/// `/bin/zsh`, the shell of a Mac, is taken for "the shell of the
/// user" where it is missing: `$SHELL` if that can be run, else `/bin/sh`.
class PosixProcessLaunching : public ProcessLaunching {
public:
    Result<Done, std::string> launch(const std::filesystem::path& executable,
        const std::vector<std::string>& arguments) override;
};

} // namespace brindlex
