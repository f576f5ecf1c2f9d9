#pragma once

#include "support/processes/ChildProcess.h"
#include "support/screen/VirtualDesktop.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The IBus input-method daemon, running on a virtual desktop; programs that are started after it
/// type through it.
class IBusDaemon {
public:
    /// Starts the daemon with these engines enabled, such as `xkb:us::eng` and `libpinyin`.
    IBusDaemon(VirtualDesktop& desktop, const std::vector<std::string>& engines);
    /// Starts the daemon with sources enabled as GNOME does, which IBus itself does not look at, in
    /// the form `[('xkb', 'us'), ('ibus', 'libpinyin')]`.
    static std::unique_ptr<IBusDaemon> inGnome(VirtualDesktop& desktop, const std::string& sources);

    /// The selected engine; empty when none is, or the daemon does not reply.
    std::string current() const;
    /// Selects an engine, as the user does in the daemon's menu; false when that failed.
    bool select(const std::string& engine);
    /// The same without a hand of the user's.
    bool change(const std::string& engine);

    /// Starts the daemon that was stopped.
    void start();
    /// Kills the daemon, as a crash of it would.
    void stop();

    /// Enables sources as GNOME does.
    static void enableInGnome(const VirtualDesktop& desktop, const std::string& sources);

private:
    explicit IBusDaemon(VirtualDesktop& desktop);
    std::optional<std::string> address() const;

    VirtualDesktop& desktop_;
    std::unique_ptr<ChildProcess> daemon_;
};

} // namespace brindlex
