#include "mouse/FrameDriver.h"

#include "mouse/NominalFrame.h"

#include <algorithm>
#include <utility>

namespace brindlex {

FrameDriver::FrameDriver(DisplayLink& displayLink, MainThread& mainThread, const Clock& clock)
    : displayLink_(displayLink), mainThread_(mainThread), clock_(clock)
{
}

void FrameDriver::start(FrameHandler handler, std::optional<float> lowestRate)
{
    if (source_ != Source::idle)
        return;
    if (const auto maximum = displayLink_.maximumFramesPerSecond()) {
        std::optional<double> rate;
        if (lowestRate)
            rate = std::max(static_cast<float>(*maximum), *lowestRate);
        source_ = Source::display;
        frames_ = displayLink_.onEachFrame(rate, std::move(handler));
    } else {
        source_ = Source::timer;
        frames_ = mainThread_.every(nominalFrame,
            [&clock = clock_, handler = std::move(handler)] { handler(clock.continuousTime()); });
    }
}

void FrameDriver::stop()
{
    source_ = Source::idle;
    frames_.reset();
}

} // namespace brindlex
