#include "platform/Pasting.h"

#include "platform/PasteKeystroke.h"
#include "platform/linux/input/X11Pasting.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedPasting.h"
#include "support/hardware/TappedDesktop.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {
namespace {

/// A session in whose application somebody types.
class SimulatedTyping {
public:
    Pasting& pasting() { return pasting_; }
    EventTapping& tapping() { return input_; }
    /// How often the application has been told to paste.
    int timesPasted()
    {
        int times = 0;
        for (const auto& event : input_.delivered())
            times += event.type == EventType::keyDown && event.flags == eventFlag::command
                    && event.value(EventField::keyboardEventKeycode) == virtualKey::v
                ? 1
                : 0;
        return times;
    }

private:
    SimulatedInput input_;
    SimulatedPasting pasting_{input_};
};

/// A window on a real server.
class X11Typing {
public:
    Pasting& pasting() { return pasting_; }
    EventTapping& tapping() { return desktop_.tapping; }
    int timesPasted()
    {
        desktop_.settle();
        return static_cast<int>(
            std::ranges::count(desktop_.window.lines(), "key 55 down (control)"));
    }

private:
    TappedDesktop desktop_;
    X11Connection display_;
    X11Pasting pasting_{display_, desktop_.posting, [](auto isShared) { isShared(); }};
};

template <typename Session>
class PastingContract : public testing::Test {
protected:
    Session session;
};

using TypingSessions = testing::Types<SimulatedTyping, X11Typing>;
TYPED_TEST_SUITE(PastingContract, TypingSessions);

TYPED_TEST(PastingContract, hasTheApplicationPasteEachTime)
{
    this->session.pasting().postPaste();
    EXPECT_EQ(this->session.timesPasted(), 1);
    this->session.pasting().postPaste();
    EXPECT_EQ(this->session.timesPasted(), 2);
}

TYPED_TEST(PastingContract, isKnownAgainByTheTap)
{
    std::vector<std::pair<EventType, std::int64_t>> seen;
    const auto tap = this->session.tapping().createTap(
        keyMask, {{keyMask, std::nullopt}}, [&](const Event& event) {
            seen.emplace_back(event.type, event.value(EventField::eventSourceUserData));
            return EventVerdict::pass;
        });
    tap->setEnabled(true);
    this->session.pasting().postPaste();
    EXPECT_EQ(seen,
        (std::vector<std::pair<EventType, std::int64_t>>{
            {EventType::keyDown, pasteEventTag}, {EventType::keyUp, pasteEventTag}}));
    EXPECT_EQ(this->session.timesPasted(), 1);
}

} // namespace
} // namespace brindlex
