#include "platform/linux/windows/RandRDisplayLink.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <xcb/randr.h>

namespace brindlex {
namespace {

constexpr double usualRate = 60;
/// What lies beyond is a mode without timing, as servers without a screen have.
constexpr double lowestRate = 10;
constexpr double highestRate = 1000;
/// X moves a page by whole notches. More frames make no finer steps of them, but the last pixels of
/// each motion so small that a notch turned alone would come to nothing.
constexpr double mostFramesPerSecond = 60;

using Resources = X11Message<xcb_randr_get_screen_resources_current_reply_t>;
using Output = X11Message<xcb_randr_get_output_info_reply_t>;
using Crtc = X11Message<xcb_randr_get_crtc_info_reply_t>;

double rateOf(const xcb_randr_mode_info_t& mode)
{
    double lines = mode.vtotal;
    if (mode.mode_flags & XCB_RANDR_MODE_FLAG_DOUBLE_SCAN)
        lines *= 2;
    if (mode.mode_flags & XCB_RANDR_MODE_FLAG_INTERLACE)
        lines /= 2;
    const double pixels = lines * mode.htotal;
    const double rate = pixels > 0 ? mode.dot_clock / pixels : 0;
    return rate >= lowestRate && rate <= highestRate ? rate : usualRate;
}

/// The rate of a screen; nothing when it is dark.
std::optional<double> rateOfOutput(
    xcb_connection_t* server, const Resources& resources, xcb_randr_output_t output)
{
    const auto time = resources->config_timestamp;
    const Output info(xcb_randr_get_output_info_reply(
        server, xcb_randr_get_output_info(server, output, time), nullptr));
    if (!info || info->crtc == XCB_NONE)
        return {};
    const Crtc crtc(xcb_randr_get_crtc_info_reply(
        server, xcb_randr_get_crtc_info(server, info->crtc, time), nullptr));
    if (!crtc || crtc->mode == XCB_NONE)
        return {};
    auto modes = xcb_randr_get_screen_resources_current_modes_iterator(resources.get());
    for (; modes.rem > 0; xcb_randr_mode_info_next(&modes))
        if (modes.data->id == crtc->mode)
            return rateOf(*modes.data);
    return usualRate;
}

/// Calls the handler at each multiple of the interval from the first call on.
class FrameTimer : public std::enable_shared_from_this<FrameTimer> {
public:
    FrameTimer(MainThread& mainThread, const Clock& clock, Seconds interval,
        DisplayLink::FrameHandler handler)
        : mainThread_(mainThread), clock_(clock), interval_(interval),
          start_(clock.continuousTime()), handler_(std::move(handler))
    {
    }

    void waitForNext()
    {
        const auto now = clock_.continuousTime();
        // A frame that is due now, but for the rounding of its time, is the one before.
        const auto frame = std::floor((now - start_) / interval_ + 1e-3) + 1;
        const auto next = frame * interval_ + start_;
        timer_ = mainThread_.after(next - now, [self = weak_from_this()] {
            if (const auto timer = self.lock())
                timer->fire();
        });
    }

    void end() { isEnded_ = true; }

private:
    void fire()
    {
        if (isEnded_)
            return;
        waitForNext();
        handler_(clock_.continuousTime());
    }

    MainThread& mainThread_;
    const Clock& clock_;
    Seconds interval_;
    Seconds start_;
    DisplayLink::FrameHandler handler_;
    Subscription timer_;
    bool isEnded_ = false;
};

} // namespace

std::optional<double> RandRDisplayLink::maximumFramesPerSecond() const
{
    auto* const server = connection_.get();
    const auto* extension = xcb_get_extension_data(server, &xcb_randr_id);
    if (!connection_.isAlive() || !extension || !extension->present)
        return connection_.isAlive() ? std::optional(usualRate) : std::nullopt;
    const auto resourcesRequest
        = xcb_randr_get_screen_resources_current(server, connection_.root());
    const auto primaryRequest = xcb_randr_get_output_primary(server, connection_.root());
    const Resources resources(
        xcb_randr_get_screen_resources_current_reply(server, resourcesRequest, nullptr));
    const X11Message<xcb_randr_get_output_primary_reply_t> primary(
        xcb_randr_get_output_primary_reply(server, primaryRequest, nullptr));
    if (!resources)
        return {};
    if (primary && primary->output != XCB_NONE)
        if (const auto rate = rateOfOutput(server, resources, primary->output))
            return rate;
    const auto* outputs = xcb_randr_get_screen_resources_current_outputs(resources.get());
    const auto count = xcb_randr_get_screen_resources_current_outputs_length(resources.get());
    for (int index = 0; index < count; ++index)
        if (const auto rate = rateOfOutput(server, resources, outputs[index]))
            return rate;
    return {};
}

Subscription RandRDisplayLink::onEachFrame(
    std::optional<double> framesPerSecond, FrameHandler handler)
{
    const auto own = maximumFramesPerSecond();
    if (!own)
        return Subscription([] {});
    // More frames than the screen shows are of no use to anybody.
    const auto rate = std::min({framesPerSecond.value_or(*own), *own, mostFramesPerSecond});
    const auto timer = std::make_shared<FrameTimer>(
        mainThread_, clock_, 1 / std::max(rate, lowestRate), std::move(handler));
    timer->waitForNext();
    return Subscription([timer] { timer->end(); });
}

} // namespace brindlex
