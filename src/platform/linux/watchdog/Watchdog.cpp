#include "platform/linux/watchdog/Watchdog.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>

namespace brindlex {

int Watchdog::run()
{
    while (!hasEnded_ && rescue_.isConnected()) {
        wait();
        readOrders();
        const bool hadInput = rescue_.takeInput();
        const bool isDue = Clock::now() >= deadline_;
        if (state_ == State::listening && hadInput) {
            ask();
            enter(State::asking);
        } else if (state_ == State::asking && isDue) {
            giveBack();
            enter(State::resting);
        } else if (state_ == State::pausing && isDue) {
            enter(State::listening);
        }
    }
    if (hasEnded_ && !isDismissed_ && !isOpenWindow_)
        rescue_.tidyAfter(window_);
    return 0;
}

void Watchdog::wait() const
{
    int milliseconds = -1;
    if (state_ == State::asking || state_ == State::pausing)
        milliseconds = std::max(0,
            static_cast<int>(
                std::chrono::ceil<std::chrono::milliseconds>(deadline_ - Clock::now()).count()));
    std::array<pollfd, 2> descriptors{
        pollfd{watchdogDescriptor, POLLIN, 0}, pollfd{rescue_.descriptor(), POLLIN, 0}};
    poll(descriptors.data(), descriptors.size(), milliseconds);
}

void Watchdog::readOrders()
{
    for (;;) {
        WatchdogMessage message;
        const auto size = recv(watchdogDescriptor, &message, sizeof(message), MSG_DONTWAIT);
        if (size == sizeof(message)) {
            obey(message);
            continue;
        }
        const bool isEmpty = size < 0 && (errno == EAGAIN || errno == EINTR);
        hasEnded_ = hasEnded_ || !isEmpty;
        return;
    }
}

void Watchdog::obey(const WatchdogMessage& message)
{
    switch (message.order) {
    case WatchdogMessage::Order::ask:
        return;
    case WatchdogMessage::Order::watch:
    case WatchdogMessage::Order::watchOpen:
        window_ = message.window;
        isOpenWindow_ = message.order == WatchdogMessage::Order::watchOpen;
        enter(State::listening);
        return;
    case WatchdogMessage::Order::rest:
        enter(State::resting);
        return;
    case WatchdogMessage::Order::alive:
        if (state_ == State::asking)
            enter(State::pausing);
        return;
    case WatchdogMessage::Order::dismiss:
        isDismissed_ = true;
        hasEnded_ = true;
        return;
    }
}

void Watchdog::enter(State state)
{
    state_ = state;
    rescue_.listen(state == State::listening);
    if (state == State::asking)
        deadline_ = Clock::now() + patience;
    else if (state == State::pausing)
        deadline_ = Clock::now() + interval;
}

void Watchdog::giveBack()
{
    if (isOpenWindow_)
        rescue_.close(window_);
    else
        rescue_.cut(window_);
}

void Watchdog::ask() const
{
    const WatchdogMessage question;
    send(watchdogDescriptor, &question, sizeof(question), MSG_NOSIGNAL | MSG_DONTWAIT);
}

} // namespace brindlex
