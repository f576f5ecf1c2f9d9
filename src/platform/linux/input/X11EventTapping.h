#pragma once

#include "platform/EventTap.h"
#include "platform/linux/input/X11InputStream.h"

namespace brindlex {

/// Taps in front of the devices of an X server.
///
/// Devices are taken from the applications only as far as the interests need it; see
/// docs/platforms.md for what that means to a handler.
class X11EventTapping : public EventTapping {
public:
    explicit X11EventTapping(X11InputStream& stream) : stream_(stream) { }

    std::unique_ptr<EventTap> createTap(
        EventMask mask, std::vector<EventInterest> interests, Handler handler) override
    {
        if (!stream_.isTappable())
            return nullptr;
        return stream_.taps().add(mask, std::move(interests), std::move(handler),
            [&stream = stream_] { stream.wantsChanged(); });
    }

private:
    X11InputStream& stream_;
};

} // namespace brindlex
