#include "platform/linux/input/X11InputStream.h"

#include "log/Log.h"

#include <utility>

namespace brindlex {
namespace {

/// How long to wait for a server that does not respond.
constexpr Seconds timeToReconnect = 1;

} // namespace

X11InputStream::X11InputStream(MainThread& mainThread, Options options)
    : mainThread_(mainThread), options_(std::move(options)),
      watchdog_(options_.watchdog, options_.display)
{
}

X11InputStream::~X11InputStream() { watchdog_.dismiss(); }

void X11InputStream::wantsChanged()
{
    pauses_ = {};
    nextApplication_ = mainThread_.after(0, [this] { applyWants(); });
}

X11TapSession* X11InputStream::session()
{
    if (session_)
        return session_->isUsable() ? session_.get() : nullptr;
    auto session = std::make_unique<X11TapSession>(options_.display, taps_,
        X11TapSession::Hooks{.eventDone = [this] { runWaiting(); },
            .grabsMayChange = [this] { wantsChanged(); },
            .ended
            = [this] { nextReconnection_ = mainThread_.after(0, [this] { reconnect(); }); }});
    if (session->isUsable()) {
        session_ = std::move(session);
        ++sessionCount_;
    } else if (const auto problem = session->problem()) {
        report(*problem);
    }
    return session_.get();
}

std::optional<PermissionObstacle> X11InputStream::obstacle()
{
    return isTappable() ? std::nullopt : std::optional(problem_.obstacle);
}

void X11InputStream::inTurn(std::function<void()> work)
{
    waiting_.push_back(std::move(work));
    runWaiting();
}

void X11InputStream::applyWants()
{
    const auto interests = taps_.interests();
    const auto demand = demandOf(interests);
    if (demand.isNothing() && !session_)
        return;
    auto* const session = this->session();
    if (!session)
        return;
    // Before anything is taken there is somebody who can give it back.
    if (!demand.isNothing())
        watchdog_.watch(session->handle());
    const bool isDone = session->apply(demand);
    if (!isDone)
        nextApplication_ = mainThread_.after(pauses_.next(), [this] { applyWants(); });
    if (session->takesNothing())
        watchdog_.rest();
}

void X11InputStream::runWaiting()
{
    if (taps_.isOffering() || isRunningWaiting_)
        return;
    isRunningWaiting_ = true;
    while (!waiting_.empty()) {
        const auto work = std::move(waiting_.front());
        waiting_.pop_front();
        work();
    }
    isRunningWaiting_ = false;
}

void X11InputStream::reconnect()
{
    // Whoever needed the input meanwhile may have connected anew.
    if (!session()) {
        session_.reset();
        watchdog_.rest();
    }
    isReconnecting_ = session() == nullptr;
    if (isReconnecting_)
        nextReconnection_ = mainThread_.after(timeToReconnect, [this] { reconnect(); });
    else
        taps_.switchOff(EventType::tapDisabledByTimeout);
}

void X11InputStream::report(const X11TappingProblem& problem)
{
    // Whoever waits for permission asks again and again.
    if (std::exchange(problem_, problem).words != problem.words)
        Log::warn("Input cannot be tapped: " + problem.words, logCategory::mouse);
}

} // namespace brindlex
