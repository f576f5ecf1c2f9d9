#pragma once

#include "platform/linux/pasteboard/X11ClipboardWorker.h"

#include <QObject>
#include <QThread>

#include <atomic>
#include <functional>
#include <future>
#include <memory>

namespace brindlex {

/// Runs an `X11ClipboardWorker` on a thread of its own. Main thread only, after the Qt application
/// was made.
class X11ClipboardThread {
public:
    /// `handler` is called on the thread. `isObserved` outlives it.
    X11ClipboardThread(const PasteboardLimits& limits, const std::atomic<bool>& isObserved,
        X11ClipboardWorker::Handler handler);
    /// Waits as long as a clipboard manager may take to get what the program owns.
    ~X11ClipboardThread();
    X11ClipboardThread(const X11ClipboardThread&) = delete;
    X11ClipboardThread& operator=(const X11ClipboardThread&) = delete;

    /// Returns when all that is copied from now on is seen.
    void waitUntilReady() const { ready_.wait(); }

    void write(std::shared_ptr<const PasteboardState> state);

    /// See `X11ClipboardWorker::shareWithMouse`; `isShared` is called on the thread.
    void shareWithMouse(std::function<void()> isShared);

private:
    void run(const std::string& display, const PasteboardLimits& limits,
        const std::atomic<bool>& isObserved, const X11ClipboardWorker::Handler& handler);
    /// Runs the work on the thread, in the order of posting.
    template <typename Work>
    void post(Work work);

    std::promise<void> isReady_;
    std::future<void> ready_ = isReady_.get_future();
    /// Of the thread, while it runs.
    X11ClipboardWorker* worker_ = nullptr;
    /// What belongs to the thread and takes posted work.
    QObject context_;
    std::unique_ptr<QThread> thread_;
};

} // namespace brindlex
