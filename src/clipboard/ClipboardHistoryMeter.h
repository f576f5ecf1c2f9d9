#pragma once

#include "clipboard/ClipboardHistoryStore.h"
#include "foundation/Lifetime.h"
#include "foundation/Observable.h"
#include "platform/BackgroundQueue.h"
#include "platform/MainThread.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace brindlex {

/// How much is in the history.
struct ClipboardHistoryMeasure {
    std::size_t items = 0;
    /// Of its files; nothing until they are counted, and when they cannot be.
    std::optional<std::uintmax_t> bytes{};

    bool operator==(const ClipboardHistoryMeasure&) const = default;
};

/// Says how much is in the history: always how many items, and how many bytes while it runs.
///
///     stopped ──start──▶ counts ◀──a second later──┐
///                          └──the history changes──┘
///
/// Bytes are counted on the queue, one count at a time, and for changes at most once a second: a
/// second after the first of them, and once more when others have come meanwhile. With the queue
/// that writes the index, what is counted last is what was written last. Main thread only.
class ClipboardHistoryMeter {
public:
    /// All of it outlives the meter; counts that are on their way may outlive it, too.
    ClipboardHistoryMeter(
        const ClipboardHistoryStore& store, MainThread& mainThread, BackgroundQueue& queue);

    const Observable<ClipboardHistoryMeasure>& measure() const { return measure_; }

    /// Counts at once.
    void start();
    void stop();

private:
    void receive(std::size_t items);
    void count();
    void countLater();
    void finishWait();
    void finishCount(std::optional<std::uintmax_t> bytes);

    const ClipboardHistoryStore& store_;
    MainThread& mainThread_;
    BackgroundQueue& queue_;
    Observable<ClipboardHistoryMeasure> measure_;
    bool isRunning_ = false;
    bool isCounting_ = false;
    /// Whether something has changed since the wait began.
    bool hasChanged_ = false;
    Subscription wait_;
    Lifetime lifetime_;
    Subscription itemsChanges_;
};

} // namespace brindlex
