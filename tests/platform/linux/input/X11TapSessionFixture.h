#pragma once

#include "platform/VirtualKey.h"
#include "platform/linux/input/X11TapSession.h"
#include "support/hardware/InputDevices.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/TappedDesktop.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// A desktop whose input a single tap sees.
class X11TapSessionTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    static constexpr EventMask wheel = eventMask(EventType::scrollWheel);

    static EventInterest middleButton()
    {
        return {mouseButtonMask, EventTriggers{.buttons = {{2, {}}}}};
    }

    static EventInterest controlA()
    {
        return {keyMask, EventTriggers{.keys = {{virtualKey::a, eventFlag::control}}}};
    }

    X11TapSessionTest()
    {
        // With acceleration the way of the cursor would depend on the time.
        xcb_change_pointer_control(server_.get(), 1, 1, 0, true, true);
        server_.sync();
    }

    /// Has a tap in place of the one before that is switched on and notes what it sees.
    void tap(EventInterest interest, EventVerdict verdict = EventVerdict::pass)
    {
        tap_ = desktop_.tapping.createTap(interest.mask, {interest}, [=, this](const Event& event) {
            seen_.push_back(event);
            return verdict;
        });
        ASSERT_NE(tap_, nullptr);
        tap_->setEnabled(true);
        desktop_.settle();
    }

    void drop()
    {
        tap_.reset();
        desktop_.settle();
    }

    std::vector<EventType> typesSeen() const
    {
        std::vector<EventType> types;
        for (const auto& event : seen_)
            types.push_back(event.type);
        return types;
    }

    /// Waits until exactly these devices are taken.
    bool floats(const Lines& devices)
    {
        return loopUntil([&] { return floatingDevices(server_) == devices; });
    }

    TappedDesktop desktop_;
    XConnection server_;
    std::vector<Event> seen_;
    std::unique_ptr<EventTap> tap_;
};

} // namespace brindlex
