#pragma once

#include "platform/Clock.h"
#include "platform/MainThread.h"
#include "platform/linux/input/GrowingPauses.h"
#include "platform/linux/input/TapChain.h"
#include "platform/linux/input/X11TapSession.h"
#include "platform/linux/watchdog/TapWatchdog.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace brindlex {

/// The session's input on X11: what the taps and the posting of the program share.
///
/// Connects with the first need and again after its connection was cut; the taps are then notified
/// that they were switched off for taking too long, and those that are switched on again go on.
/// Changes of what the taps want are carried out once control is back in the loop, all together.
/// Main thread only.
class X11InputStream {
public:
    struct Options {
        /// The X server's name; empty means the one that `DISPLAY` names.
        std::string display{};
        /// The program that gives the input back when this one hangs.
        std::filesystem::path watchdog = TapWatchdog::besideThisProgram();
    };

    X11InputStream(MainThread& mainThread, Options options);
    explicit X11InputStream(MainThread& mainThread) : X11InputStream(mainThread, Options{}) { }
    ~X11InputStream();

    TapChain& taps() { return taps_; }

    /// Says that the taps want something else now.
    void wantsChanged();

    /// The connection to the input; null when it cannot be tapped, or was cut.
    /// Why it cannot be tapped is logged once.
    X11TapSession* session();

    /// Whether the input can be tapped, be it only when the connection that was cut is back.
    bool isTappable() { return session_ || isReconnecting_ || session(); }

    /// Why it cannot be tapped; nothing while it can.
    std::optional<PermissionObstacle> obstacle();

    /// How many connections there have been.
    int sessionCount() const { return sessionCount_; }

    /// Runs the work now or, when a tap looks at an event, right after that event.
    void inTurn(std::function<void()> work);

private:
    void applyWants();
    void runWaiting();
    void reconnect();
    void report(const X11TappingProblem& problem);

    MainThread& mainThread_;
    Options options_;
    TapChain taps_;
    std::unique_ptr<X11TapSession> session_;
    bool isReconnecting_ = false;
    int sessionCount_ = 0;
    X11TappingProblem problem_;
    TapWatchdog watchdog_;
    std::deque<std::function<void()>> waiting_;
    bool isRunningWaiting_ = false;
    /// Between attempts to take what another program holds.
    GrowingPauses pauses_;
    Subscription nextApplication_;
    Subscription nextReconnection_;
};

} // namespace brindlex
