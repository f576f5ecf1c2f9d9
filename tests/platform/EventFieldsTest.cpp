#include "platform/EventFields.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(EventFields, areZeroUntilTheyAreSet)
{
    EXPECT_EQ(EventFields().value(EventField::eventSourceUserData), 0);
}

TEST(EventFields, keepTheOrderInWhichTheyWereSet)
{
    EventFields fields;
    fields.set(EventField::eventSourceUserData, 7);
    fields.set(EventField::mouseEventButtonNumber, 2);
    fields.set(EventField::eventSourceUserData, 8);

    EXPECT_EQ(fields,
        (EventFields{
            {EventField::eventSourceUserData, 8}, {EventField::mouseEventButtonNumber, 2}}));
    EXPECT_NE(fields,
        (EventFields{
            {EventField::mouseEventButtonNumber, 2}, {EventField::eventSourceUserData, 8}}));
}

TEST(EventFields, haveRoomForTwelve)
{
    EventFields fields;
    for (std::uint32_t number = 1; number <= 12; ++number)
        fields.set(static_cast<EventField>(number), number);

    EXPECT_EQ(fields.entries().size(), 12u);
    EXPECT_EQ(fields.value(static_cast<EventField>(12)), 12);
    fields.set(static_cast<EventField>(12), -1);
    EXPECT_EQ(fields.value(static_cast<EventField>(12)), -1);
    EXPECT_DEATH(fields.set(static_cast<EventField>(13), 13), "no room");
}

} // namespace
} // namespace brindlex
