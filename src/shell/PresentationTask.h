#pragma once

#include "foundation/Date.h"
#include "foundation/Subscription.h"
#include "platform/MainThread.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <span>

namespace brindlex {

/// The pauses before each try to bring a window to the front that somebody asked for.
inline constexpr std::array<Seconds, 5> showDelays{0.05, 0.15, 0.3, 0.6, 1.0};

/// The same for a window that was in front before the dock icon went.
inline constexpr std::array<Seconds, 2> raiseAgainDelays{0.05, 0.15};

/// Tries something again after one pause and the next, until it need not be tried any more or there
/// is no pause left. One at a time. Main thread only.
class PresentationTask {
public:
    /// Returns whether it is to be tried again. May start the task anew.
    using Attempt = std::function<bool()>;

    explicit PresentationTask(MainThread& mainThread) : mainThread_(mainThread) { }

    /// Takes the place of what is pending. The first try comes after the first pause; the pauses
    /// outlive the task.
    void start(std::span<const Seconds> delays, Attempt attempt);

    void cancel() { next_.reset(); }

    bool isPending() const { return next_.isActive(); }

private:
    void tryAfter(std::size_t index);
    void tryNow(std::size_t index);

    MainThread& mainThread_;
    std::span<const Seconds> delays_;
    std::shared_ptr<const Attempt> attempt_;
    std::size_t generation_ = 0;
    Subscription next_;
};

} // namespace brindlex
