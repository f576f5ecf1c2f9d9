#include "platform/simulated/SimulatedKeyablePanel.h"

#include <sstream>
#include <utility>

namespace brindlex {

void SimulatedKeyablePanel::setAlpha(double alpha)
{
    std::ostringstream call;
    call << "alpha " << alpha;
    calls_.push_back(call.str());
    fade_.reset();
    alpha_ = alpha;
}

void SimulatedKeyablePanel::setFrame(const Rect& frame)
{
    std::ostringstream call;
    call << "frame " << frame.origin.x << "," << frame.origin.y << " " << frame.size.width << "x"
         << frame.size.height;
    calls_.push_back(call.str());
    frame_ = frame;
}

void SimulatedKeyablePanel::orderFront()
{
    calls_.emplace_back("order front");
    isVisible_ = true;
}

void SimulatedKeyablePanel::makeKeyAndOrderFront()
{
    calls_.emplace_back("make key");
    isVisible_ = true;
    isKey_ = true;
}

void SimulatedKeyablePanel::orderOut()
{
    calls_.emplace_back("order out");
    fade_.reset();
    isVisible_ = false;
    isKey_ = false;
}

void SimulatedKeyablePanel::displayIfNeeded() { calls_.emplace_back("display"); }

void SimulatedKeyablePanel::fadeIn()
{
    calls_.emplace_back("fade in");
    alpha_ = (alpha_ + 1) / 2;
    fade_ = mainThread_.after(fadeTime, [this] {
        fade_.reset();
        alpha_ = 1;
    });
}

Subscription SimulatedKeyablePanel::observeDidResignKey(Handler handler)
{
    return resignations_.add(std::move(handler));
}

Subscription SimulatedKeyablePanel::observePressOutside(Handler handler)
{
    return pressesOutside_.add(std::move(handler));
}

void SimulatedKeyablePanel::resignKey()
{
    if (std::exchange(isKey_, false))
        resignations_.notify();
}

void SimulatedKeyablePanel::pressOutside()
{
    if (isVisible_)
        pressesOutside_.notify();
}

std::vector<std::string> SimulatedKeyablePanel::takeCalls() { return std::exchange(calls_, {}); }

} // namespace brindlex
