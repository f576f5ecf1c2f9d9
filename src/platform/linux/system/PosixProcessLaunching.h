#pragma once

#include "platform/MainThread.h"
#include "platform/ProcessLaunching.h"
#include "platform/posix/SerialQueue.h"

#include <optional>

namespace brindlex {

/// Starts programs in a session of their own, with no descriptor of this program but the standard
/// streams, and with the signals as a new process has them.
///
/// `/bin/zsh`, the shell of a Mac, is taken for "the shell of the user" where it is missing:
/// `$SHELL` if that can be run, else `/bin/sh`. One after the other, on a thread of its own that is
/// there from the first one on; the end of this object waits for those that are to be started.
class PosixProcessLaunching : public ProcessLaunching {
public:
    explicit PosixProcessLaunching(MainThread& mainThread) : mainThread_(mainThread) { }

    void launch(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
        Failed failed) override;

private:
    MainThread& mainThread_;
    std::optional<SerialQueue> queue_;
};

} // namespace brindlex
