#pragma once

#include "platform/EventTap.h"
#include "platform/TappedSessions.h"
#include "platform/VirtualKey.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A session whose input one tap sees.
template <typename Session>
class EventTappingContract : public testing::Test {
protected:
    /// A tap that is switched on, and that notes what it sees as `type number`.
    void tap(std::vector<EventInterest> interests, EventVerdict verdict = EventVerdict::pass)
    {
        tap_.reset();
        EventMask mask = 0;
        for (const auto& interest : interests)
            mask |= interest.mask;
        tap_ = session_.tapping().createTap(mask, interests, [this, verdict](const Event& event) {
            const bool isKey = event.type == EventType::keyDown || event.type == EventType::keyUp;
            seen_.push_back(std::to_string(static_cast<std::uint32_t>(event.type)) + " "
                + std::to_string(event.value(isKey ? EventField::keyboardEventKeycode
                                                   : EventField::mouseEventButtonNumber)));
            return verdictOf_ ? verdictOf_(event) : verdict;
        });
        ASSERT_NE(tap_, nullptr);
        tap_->setEnabled(true);
        session_.settle();
    }

    /// Clicks two buttons, of which the tap sees and swallows the first.
    void expectThatTheThirdButtonIsKept()
    {
        session_.press(3);
        session_.release(3);
        session_.press(4);
        session_.release(4);

        EXPECT_TRUE(session_.receives({"press 9", "release 9"}));
        EXPECT_EQ(seen_, (std::vector<std::string>{"25 3", "26 3"}));
    }

    static constexpr EventMask otherButtons = mouseButtonMaskOf(2);
    static EventInterest button(std::int64_t number, std::optional<std::uint64_t> flags = {})
    {
        return {mouseButtonMask, EventTriggers{.buttons = {{number, flags}}}};
    }
    static EventInterest key(std::int64_t code, std::uint64_t flags)
    {
        return {keyMask, EventTriggers{.keys = {{code, flags}}}};
    }

    Session session_;
    std::vector<std::string> seen_;
    std::function<EventVerdict(const Event&)> verdictOf_;
    std::unique_ptr<EventTap> tap_;
};

TYPED_TEST_SUITE(EventTappingContract, TappedSessions);

} // namespace brindlex
