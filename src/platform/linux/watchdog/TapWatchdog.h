#pragma once

#include "foundation/FileHandle.h"
#include "platform/linux/watchdog/WatchdogMessage.h"

#include <filesystem>
#include <memory>
#include <string>
#include <sys/types.h>

class QSocketNotifier;

namespace brindlex {

/// The process beside the program that gives the user's input back when the program hangs or dies
/// with devices taken, or hangs while a window of its own keeps the pointer and the keys.
///
/// It is started with the first need. While something is taken and the user does something, it asks
/// now and then whether the loop still turns, and cuts the connection of the taps when no response
/// comes; see docs/decisions/0021. It ends with the program, however that ends. Main thread only.
class TapWatchdog {
public:
    /// `display` is the X server's name; empty means the one that `DISPLAY` names.
    TapWatchdog(std::filesystem::path program, std::string display);
    ~TapWatchdog();
    TapWatchdog(const TapWatchdog&) = delete;
    TapWatchdog& operator=(const TapWatchdog&) = delete;

    /// Where the watchdog is installed: in the folder of the running program.
    static std::filesystem::path besideThisProgram();

    /// Devices are taken through the connection to which the window belongs.
    void watch(std::uint32_t window) { watch({WatchdogMessage::Order::watch, window}); }

    /// The window is open and keeps the pointer and the keys to itself; it is taken from the screen
    /// if the program hangs.
    void watchOpen(std::uint32_t window) { watch({WatchdogMessage::Order::watchOpen, window}); }

    /// Nothing is taken any more.
    void rest();

    /// Ends the watchdog: there is nothing left to be given back.
    void dismiss();

private:
    void watch(WatchdogMessage order);
    void start();
    void notify(WatchdogMessage message) const;
    void respond();
    void ended();

    std::filesystem::path program_;
    std::string display_;
    FileHandle socket_;
    pid_t process_ = -1;
    int startsLeft_ = 3;
    /// What is watched; an empty order for nothing.
    WatchdogMessage watched_{};
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace brindlex
