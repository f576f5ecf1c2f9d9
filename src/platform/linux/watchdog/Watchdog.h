#pragma once

#include "platform/linux/watchdog/InputRescue.h"
#include "platform/linux/watchdog/WatchdogMessage.h"

#include <chrono>
#include <string>

namespace brindlex {

/// Watches whether a program that has taken the user's input still answers.
///
///     resting ──watch──▶ listening ──input──▶ asking ──alive──▶ pausing ──interval──▶ listening
///                                               └──no answer──▶ resting, the input given back
///
/// It sleeps while nothing is taken, and while something is taken and the user does nothing.
class Watchdog {
public:
    using Clock = std::chrono::steady_clock;

    /// The program has this long to answer; together with the time that the rescue takes the user
    /// has the input back within a second.
    static constexpr std::chrono::milliseconds patience{450};
    /// How long after an answer the program is not asked again.
    static constexpr std::chrono::milliseconds interval{100};

    explicit Watchdog(const std::string& display) : rescue_(display) { }

    /// Watches until the program has ended; the code for `exit`.
    int run();

private:
    enum class State { resting, listening, asking, pausing };

    void wait() const;
    void readOrders();
    void obey(const WatchdogMessage& message);
    void enter(State state);
    void ask() const;
    void giveBack();

    InputRescue rescue_;
    State state_ = State::resting;
    Clock::time_point deadline_{};
    std::uint32_t window_ = 0;
    /// Whether the window itself keeps the pointer and the keys; else its connection has devices.
    bool isOpenWindow_ = false;
    bool hasEnded_ = false;
    bool isDismissed_ = false;
};

} // namespace brindlex
