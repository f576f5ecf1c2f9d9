#pragma once

#include "support/processes/ChildProcess.h"
#include "support/screen/VirtualDesktop.h"

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// The Fcitx 5 input-method daemon, running on a virtual desktop; programs that are started after
/// it type through it.
class FcitxDaemon {
public:
    /// Starts the daemon with one group of these input methods, such as `keyboard-us` and `pinyin`.
    FcitxDaemon(VirtualDesktop& desktop, const std::vector<std::string>& inputMethods);

    /// The selected input method; empty when none is, or the daemon does not reply.
    std::string current() const;
    /// The input context that has the keyboard; empty when none has it.
    std::string context() const;
    /// Selects an input method, as the user does in the daemon's menu, again while nothing comes of
    /// it; false when nothing did.
    bool select(const std::string& inputMethod);
    /// The same without a hand of the user's.
    bool change(const std::string& inputMethod);

    /// Starts the daemon that was stopped.
    void start();
    /// Kills the daemon, as a crash of it would.
    void stop();

private:
    VirtualDesktop& desktop_;
    std::unique_ptr<ChildProcess> daemon_;
};

} // namespace brindlex
