#include "platform/EventPosting.h"

#include "platform/TappedSessions.h"
#include "platform/VirtualKey.h"

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

constexpr EventMask otherButtons = mouseButtonMaskOf(2);
constexpr std::int64_t tag = 0x4D4F534547535452;

template <typename Session>
class EventPostingContract : public testing::Test {
protected:
    void click(std::int64_t number)
    {
        for (const auto type : {EventType::otherMouseDown, EventType::otherMouseUp})
            EXPECT_TRUE(session_.posting().post({type, {}, {},
                {{EventField::mouseEventButtonNumber, number},
                    {EventField::eventSourceUserData, tag}}}));
    }
    void stroke()
    {
        for (const auto type : {EventType::keyDown, EventType::keyUp})
            EXPECT_TRUE(session_.posting().post(
                {type, {}, 0, {{EventField::keyboardEventKeycode, virtualKey::a}}}));
    }

    void tap(EventTriggers triggers, EventTapping::Handler handler)
    {
        tap_ = session_.tapping().createTap(
            otherButtons, {{otherButtons, std::move(triggers)}}, std::move(handler));
        ASSERT_NE(tap_, nullptr);
        tap_->setEnabled(true);
        session_.settle();
    }

    Session session_;
    std::unique_ptr<EventTap> tap_;
};

TYPED_TEST_SUITE(EventPostingContract, TappedSessions);

TYPED_TEST(EventPostingContract, bringsEventsToTheApplicationsInTheOrderOfPosting)
{
    this->click(2);
    this->stroke();
    this->click(3);

    EXPECT_TRUE(this->session_.receives(
        {"press 2", "release 2", "key 38 down", "key 38 up", "press 8", "release 8"}));
}

TYPED_TEST(EventPostingContract, showsEventsToTheOwnTapWhichMaySwallowThem)
{
    std::vector<std::pair<std::int64_t, std::int64_t>> seen;
    this->tap({}, [&](const Event& event) {
        const auto number = event.value(EventField::mouseEventButtonNumber);
        seen.emplace_back(number, event.value(EventField::eventSourceUserData));
        return number == 3 ? EventVerdict::swallow : EventVerdict::pass;
    });

    this->click(2);
    this->click(3);
    this->stroke();

    EXPECT_TRUE(this->session_.receives({"press 2", "release 2", "key 38 down", "key 38 up"}));
    EXPECT_EQ(seen,
        (std::vector<std::pair<std::int64_t, std::int64_t>>{
            {2, tag}, {2, tag}, {3, tag}, {3, tag}}));
}

TYPED_TEST(EventPostingContract, letsTheEventGoFirstFromWhoseHandlerItIsCalled)
{
    this->tap({.buttons = {{2, {}}}}, [&](const Event& event) {
        if (event.type == EventType::otherMouseDown)
            this->stroke();
        return EventVerdict::pass;
    });

    this->session_.press(2);
    this->session_.release(2);

    EXPECT_TRUE(this->session_.receives({"press 2", "key 38 down", "key 38 up", "release 2"}));
}

TYPED_TEST(EventPostingContract, isOfUseToATapThatSwallowsTheCause)
{
    this->tap({.buttons = {{2, {}}}}, [&](const Event& event) {
        if (event.type == EventType::otherMouseDown)
            this->stroke();
        return EventVerdict::swallow;
    });

    this->session_.press(2);
    this->session_.release(2);

    EXPECT_TRUE(this->session_.receives({"key 38 down", "key 38 up"}));
}

} // namespace
} // namespace brindlex
