#pragma once

#include "platform/linux/inputsources/InputSourceBackend.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace brindlex {

/// Which method Fcitx 5 has selected, and whether a selection of this program has reached the
/// window that it was for.
///
///     following ──select──▶ keeping ──┬─ check: keep, requestAgain
///         ▲                  │   ▲    │
///         │                  │   └────┘
///         └──────────────────┘ refused, or check: left, chosen, reached
///
/// Following reads which input context has the keyboard and which method is selected there. Each
/// context may have a method of its own: another method is a choice only in the context in which
/// the method was read before. Keeping checks the same, and decides by the first of these rows that
/// applies:
///
///     active window   context with the keyboard   its method   requested     verdict
///     another         any                         any          any time ago  left
///     same or none    none                        any          any time ago  keep
///     same or none    another than at request     another      any time ago  requestAgain
///     same or none    the one at the request      another      any time ago  chosen
///     same or none    any                         requested    ≤ 300 ms ago  keep
///     same or none    any                         requested    > 300 ms ago  reached
///
/// The context of a request is known when the keyboard was in the same one before and after it;
/// every context is another than an unknown one.
///
/// One read and one check are under way at a time. The operations that begin something return the
/// number of the last selection or pause, and those that end it take that back: replies to requests
/// from before a later one count for nothing.
class Fcitx5Selection {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// When to check for the first time, counted from the daemon's reply to the selection: an
    /// engine that has to be started keeps the daemon from giving anybody the keyboard.
    static constexpr std::chrono::milliseconds firstCheckDelay{100};

    enum class Verdict { keep, requestAgain, left, chosen, reached };

    /// What became of the method with a read.
    enum class Change { none, choice, context };

    /// What a read or a check has found.
    struct Observation {
        /// The input context with the keyboard before and after `method` was read; empty for none.
        std::string contextBefore{};
        std::string contextAfter{};
        /// Absent when the daemon returned an error; empty when no window types through the daemon.
        std::optional<std::string> method{};
        /// 0 for none; of no use to a read.
        std::uint32_t activeWindow = 0;

        bool isSteady() const { return method && contextBefore == contextAfter; }
    };

    /// The method of the selection that is kept, else the one that was read last; nothing as long
    /// as no window types through the daemon.
    std::optional<std::string> method() const;
    bool isKeeping() const { return request_.has_value(); }
    /// Whether the current method was read at all.
    bool hasRead() const { return readAt_.has_value(); }
    /// Whether what was read is too old to be returned as the current method.
    bool isStale(Time now) const;

    /// Nothing was read for a while: what the next read brings is nobody's choice.
    void pause();
    std::optional<int> beginRead();
    /// Whether the reply counts; if so, `take` is to follow, unless it is an error.
    bool endRead(int selection);
    /// Takes what was read. While the keyboard moves nobody knows whose method that is: it counts
    /// for nothing, nor does an error.
    Change take(const Observation& seen, Time now);

    /// The method was requested from the daemon while `window` was active.
    int select(const std::string& method, std::uint32_t window, Time now);
    /// The daemon has replied to the request for a selection, before and after which these contexts
    /// had the keyboard, or nobody where that is empty; whether a check is to follow.
    bool acknowledge(int selection, const std::string& before, const std::string& after);
    /// Ends the selection unless what was read since says that the daemon has made it.
    SelectionStatus confirm(bool isReplyAnError);

    std::optional<int> beginCheck();
    /// `requestAgain` stands for a request for `method`, `left` and `chosen` for a change of it.
    Verdict endCheck(int selection, const Observation& seen, Time now);

private:
    struct Request {
        std::string method{};
        std::uint32_t window = 0;
        /// The input context that had the keyboard when it was made; empty for none or unknown.
        std::string context{};
        Time madeAt{};
    };

    Verdict judge(const Observation& seen, Time now) const;

    std::optional<std::string> read_;
    /// The context with the keyboard when that was read, empty for none; absent when it is unknown.
    std::optional<std::string> context_;
    std::optional<Time> readAt_;
    std::optional<Request> request_;
    int selection_ = 0;
    bool isReading_ = false;
    bool isChecking_ = false;
};

} // namespace brindlex
