#include "platform/PasteKeystroke.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(PasteKeystroke, isAPressAndAReleaseThatTheProgramKnowsAgain)
{
    const EventFields fields{{EventField::keyboardEventKeycode, 9},
        {EventField::eventSourceUserData, 0x4D4F534550535445}};
    const std::array<SyntheticEvent, 2> expected{
        SyntheticEvent{EventType::keyDown, {}, eventFlag::command, fields},
        SyntheticEvent{EventType::keyUp, {}, eventFlag::command, fields}};
    EXPECT_EQ(pasteKeystroke(9, 0x100000), expected);
}

TEST(PasteKeystroke, isAnyKeyWithAnyFlags)
{
    for (const auto& event : pasteKeystroke(114, eventFlag::shift)) {
        EXPECT_EQ(event.fields.value(EventField::keyboardEventKeycode), 114);
        EXPECT_EQ(event.flags, eventFlag::shift);
    }
}

TEST(PasteKeystroke, hasATagThatReadsAsText)
{
    std::string text;
    for (int shift = 56; shift >= 0; shift -= 8)
        text += static_cast<char>(pasteEventTag >> shift & 0xFF);
    EXPECT_EQ(text, "MOSEPSTE");
}

} // namespace
} // namespace brindlex
