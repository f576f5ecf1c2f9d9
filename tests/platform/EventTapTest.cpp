#include "platform/EventTappingFixture.h"

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

TYPED_TEST(EventTappingContract, losesNothingWhenATapTakesThePlaceOfAnother)
{
    this->tap({this->button(2)}, EventVerdict::swallow);
    this->session_.press(2);

    this->tap({this->button(2), this->button(3)}, EventVerdict::swallow);
    this->session_.release(2);
    this->session_.press(3);
    this->session_.release(3);
    this->session_.press(0);
    this->session_.release(0);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"25 2", "26 2", "25 3", "26 3"}));
}

TYPED_TEST(EventTappingContract, takesOtherInterestsInItsStride)
{
    this->tap({this->button(2)}, EventVerdict::swallow);

    this->tap_->setInterests({this->button(3)});
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->session_.press(3);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives({"press 2", "release 2"}));
    EXPECT_EQ(this->seen_, (Lines{"25 3", "26 3"}));
}

TYPED_TEST(EventTappingContract, letsAllPassWhileSwitchedOffAndWhenGone)
{
    this->tap({this->button(2)}, EventVerdict::swallow);

    this->tap_->setEnabled(false);
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->tap_->setEnabled(true);
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->tap_.reset();
    this->session_.settle();
    this->session_.press(3);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives({"press 2", "release 2", "press 8", "release 8"}));
    EXPECT_EQ(this->seen_, (Lines{"25 2", "26 2"}));
}

TYPED_TEST(EventTappingContract, mayBeDestroyedInItsHandlerWhoseVerdictCounts)
{
    this->verdictOf_ = [this](const Event&) {
        this->tap_.reset();
        return EventVerdict::swallow;
    };
    this->tap({this->button(2)});

    this->session_.press(2);
    this->session_.release(2);
    this->session_.press(2);
    this->session_.release(2);

    EXPECT_TRUE(this->session_.receives({"press 2", "release 2"}));
    EXPECT_EQ(this->seen_, Lines{"25 2"});
}

TYPED_TEST(EventTappingContract, saysThatTheSystemHasSwitchedItOffAndGoesOnWhenSwitchedOn)
{
    this->verdictOf_ = [this](const Event& event) {
        if (event.type == EventType::tapDisabledByTimeout)
            this->tap_->setEnabled(true);
        return EventVerdict::swallow;
    };
    this->tap({this->button(2)});

    this->session_.switchTapsOff();
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->session_.press(0);
    this->session_.release(0);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"4294967294 0", "25 2", "26 2"}));
}

} // namespace
} // namespace brindlex
