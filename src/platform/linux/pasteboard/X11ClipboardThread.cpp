#include "platform/linux/pasteboard/X11ClipboardThread.h"

#include <QEventLoop>
#include <QMetaObject>

#include <cstdlib>
#include <utility>

namespace brindlex {

X11ClipboardThread::X11ClipboardThread(const PasteboardLimits& limits,
    const std::atomic<bool>& isObserved, X11ClipboardWorker::Handler handler)
{
    const auto* const display = std::getenv("DISPLAY");
    thread_.reset(QThread::create(
        [this, display = std::string(display ? display : ""), limits, &isObserved,
            handler = std::move(handler)] { run(display, limits, isObserved, handler); }));
    thread_->setObjectName("Brindlex.Clip");
    context_.moveToThread(thread_.get());
    thread_->start();
}

X11ClipboardThread::~X11ClipboardThread()
{
    post([this] { worker_->end([this] { thread_->quit(); }); });
    thread_->wait();
}

void X11ClipboardThread::write(std::shared_ptr<const PasteboardState> state)
{
    post([this, state = std::move(state)] { worker_->write(state); });
}

void X11ClipboardThread::shareWithMouse(std::function<void()> isShared)
{
    post([this, isShared = std::move(isShared)] {
        worker_->shareWithMouse();
        isShared();
    });
}

void X11ClipboardThread::run(const std::string& display, const PasteboardLimits& limits,
    const std::atomic<bool>& isObserved, const X11ClipboardWorker::Handler& handler)
{
    X11ClipboardWorker worker(display, limits, isObserved, handler);
    worker_ = &worker;
    isReady_.set_value();
    QEventLoop().exec();
}

template <typename Work>
void X11ClipboardThread::post(Work work)
{
    QMetaObject::invokeMethod(&context_, std::move(work), Qt::QueuedConnection);
}

} // namespace brindlex
