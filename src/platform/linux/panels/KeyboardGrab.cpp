#include "platform/linux/panels/KeyboardGrab.h"

#include <QWindow>

#include <chrono>
#include <utility>

namespace brindlex {
namespace {

constexpr std::chrono::milliseconds betweenGrabs{10};
constexpr int mostGrabs = 30;

} // namespace

KeyboardGrab::KeyboardGrab(std::function<void()> refused) : refused_(std::move(refused))
{
    attempts_.setInterval(betweenGrabs);
    attempts_.callOnTimeout([this] { attempt(); });
}

void KeyboardGrab::take(QWindow& window)
{
    if (isTaken_ || attempts_.isActive())
        return;
    window_ = &window;
    made_ = 0;
    // Before anything is taken: the program may hang at any moment.
    watchdog_.watchOpen(static_cast<std::uint32_t>(window.winId()));
    attempts_.start();
    attempt();
}

void KeyboardGrab::giveBack()
{
    attempts_.stop();
    watchdog_.rest();
    if (std::exchange(isTaken_, false))
        window_->setKeyboardGrabEnabled(false);
}

void KeyboardGrab::attempt()
{
    isTaken_ = window_->setKeyboardGrabEnabled(true);
    if (isTaken_)
        return attempts_.stop();
    if (++made_ >= mostGrabs)
        refused_();
}

} // namespace brindlex
