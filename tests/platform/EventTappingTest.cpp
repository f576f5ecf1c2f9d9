#include "platform/EventTappingFixture.h"

#include <chrono>
#include <thread>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

TYPED_TEST(EventTappingContract, handsOnOnceAndInOrderWhatPasses)
{
    this->tap({{this->otherButtons | eventMask(EventType::scrollWheel), {}}});

    this->session_.press(2);
    this->session_.turnWheelUp();
    this->session_.release(2);
    this->session_.press(3);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives(
        {"press 2", "press 4", "release 4", "release 2", "press 8", "release 8"}));
    EXPECT_EQ(this->seen_, (Lines{"25 2", "22 0", "26 2", "25 3", "26 3"}));
}

TYPED_TEST(EventTappingContract, keepsWhatIsSwallowedFromTheApplications)
{
    this->tap({this->button(3)}, EventVerdict::swallow);

    this->expectThatTheThirdButtonIsKept();
}

TYPED_TEST(EventTappingContract, keepsAlsoWhatIsSwallowedLate)
{
    this->verdictOf_ = [](const Event&) {
        std::this_thread::sleep_for(std::chrono::milliseconds{200});
        return EventVerdict::swallow;
    };
    this->tap({this->button(3)});

    this->expectThatTheThirdButtonIsKept();
}

TYPED_TEST(EventTappingContract, leavesAloneWhatIsNoTrigger)
{
    this->tap(
        {this->button(2), this->key(virtualKey::a, eventFlag::control)}, EventVerdict::swallow);

    this->session_.press(0);
    this->session_.release(0);
    this->session_.turnWheelUp();
    this->session_.pressKey(virtualKey::a);
    this->session_.releaseKey(virtualKey::a);

    EXPECT_TRUE(this->session_.receives(
        {"press 1", "release 1", "press 4", "release 4", "key 38 down", "key 38 up"}));
    EXPECT_EQ(this->seen_, Lines{});
}

TYPED_TEST(EventTappingContract, swallowsAKeyWithExactlyItsModifiers)
{
    this->tap({this->key(virtualKey::a, eventFlag::control)}, EventVerdict::swallow);

    this->session_.pressKey(virtualKey::a);
    this->session_.releaseKey(virtualKey::a);
    this->session_.holdControl();
    this->session_.pressKey(virtualKey::a);
    this->session_.releaseKey(virtualKey::a);
    this->session_.pressKey(virtualKey::s);
    this->session_.releaseKey(virtualKey::s);
    this->session_.dropControl();

    EXPECT_TRUE(this->session_.receives({"key 38 down", "key 38 up", "key 37 down",
        "key 39 down (control)", "key 39 up (control)", "key 37 up (control)"}));
    EXPECT_EQ(this->seen_, (Lines{"10 0", "11 0"}));
}

TYPED_TEST(EventTappingContract, swallowsAButtonOnlyWithItsModifiers)
{
    this->tap({this->button(0, eventFlag::control)}, EventVerdict::swallow);

    this->session_.press(0);
    this->session_.release(0);
    this->session_.holdControl();
    this->session_.press(0);
    this->session_.release(0);
    this->session_.dropControl();

    EXPECT_TRUE(
        this->session_.receives({"press 1", "release 1", "key 37 down", "key 37 up (control)"}));
    EXPECT_EQ(this->seen_, (Lines{"1 0", "2 0"}));
}

TYPED_TEST(EventTappingContract, sendsAReleaseWhereItsPressWent)
{
    this->verdictOf_ = [](const Event& event) {
        const bool isBack = event.value(EventField::mouseEventButtonNumber) == 3;
        return isMouseDown(event.type) == isBack ? EventVerdict::swallow : EventVerdict::pass;
    };
    this->tap({this->button(3), this->button(4)});

    this->session_.press(3);
    this->session_.release(3);
    this->session_.press(4);
    this->session_.release(4);

    EXPECT_TRUE(this->session_.receives({"press 9", "release 9"}));
}

TYPED_TEST(EventTappingContract, seesTheWholeOfADeviceFromATriggerToItsLastRelease)
{
    this->verdictOf_ = [](const Event& event) {
        return event.value(EventField::mouseEventButtonNumber) == 3 ? EventVerdict::swallow
                                                                    : EventVerdict::pass;
    };
    this->tap({this->button(3)});

    this->session_.press(3);
    this->session_.press(0);
    this->session_.release(3);
    this->session_.release(0);
    this->session_.press(0);
    this->session_.release(0);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1", "press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"25 3", "1 0", "26 3", "2 0"}));
}

TYPED_TEST(EventTappingContract, tellsTwoMiceApart)
{
    this->tap({this->button(3)}, EventVerdict::swallow);

    this->session_.press(3);
    this->session_.pressOnSecondMouse(0);
    this->session_.releaseOnSecondMouse(0);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"25 3", "26 3"}));
}

} // namespace
} // namespace brindlex
