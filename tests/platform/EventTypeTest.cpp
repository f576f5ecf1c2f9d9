#include "platform/EventType.h"

#include <gtest/gtest.h>

#include <array>

namespace brindlex {
namespace {

constexpr std::array allTypes{EventType::leftMouseDown, EventType::leftMouseUp,
    EventType::rightMouseDown, EventType::rightMouseUp, EventType::mouseMoved,
    EventType::leftMouseDragged, EventType::rightMouseDragged, EventType::keyDown, EventType::keyUp,
    EventType::flagsChanged, EventType::scrollWheel, EventType::otherMouseDown,
    EventType::otherMouseUp, EventType::otherMouseDragged, EventType::gesture,
    EventType::dockGesture, EventType::tapDisabledByTimeout, EventType::tapDisabledByUserInput};

TEST(EventType, hasTheBitOfItsNumberInAMask)
{
    for (const auto type : allTypes) {
        const auto number = static_cast<std::uint32_t>(type);
        EXPECT_EQ(eventMask(type), number < 64 ? EventMask{1} << number : 0) << number;
    }
    EXPECT_EQ(eventMask(EventType{63}), EventMask{1} << 63);
    EXPECT_EQ(eventMask(EventType{64}), 0U);
}

TEST(EventType, joinsWithOthersInAMask)
{
    EXPECT_EQ(eventMask(EventType::keyDown, EventType::keyUp, EventType::keyDown), 0xC00U);
    EXPECT_EQ(eventMask(EventType::tapDisabledByTimeout, EventType::mouseMoved), 0x20U);
}

TEST(EventType, hasGroupsWithTheseMasks)
{
    EXPECT_EQ(mouseDownMask, 0x200000AU);
    EXPECT_EQ(mouseUpMask, 0x4000014U);
    EXPECT_EQ(mouseDraggedMask, 0x80000C0U);
    EXPECT_EQ(mouseButtonMask, 0xE0000DEU);
    EXPECT_EQ(keyMask, 0xC00U);
}

TEST(EventType, isAPressAReleaseOrADragOfAMouseOrNothingOfTheKind)
{
    for (const auto type : allTypes) {
        const auto number = static_cast<std::uint32_t>(type);
        EXPECT_EQ(isMouseDown(type), number == 1 || number == 3 || number == 25) << number;
        EXPECT_EQ(isMouseUp(type), number == 2 || number == 4 || number == 26) << number;
        EXPECT_EQ(isMouseDragged(type), number == 6 || number == 7 || number == 27) << number;
    }
}

TEST(EventType, isThatOfTheLeftButtonTheRightOneOrAnyOther)
{
    struct Row {
        std::int64_t button;
        EventType down, up, dragged;
        EventMask mask;
    };
    constexpr Row left{
        0, EventType::leftMouseDown, EventType::leftMouseUp, EventType::leftMouseDragged, 0x46};
    constexpr Row right{
        1, EventType::rightMouseDown, EventType::rightMouseUp, EventType::rightMouseDragged, 0x98};
    const auto other = [](std::int64_t button) {
        return Row{button, EventType::otherMouseDown, EventType::otherMouseUp,
            EventType::otherMouseDragged, 0xE000000};
    };
    for (const auto& row : {left, right, other(2), other(3), other(31), other(32), other(250),
             other(INT64_MAX), other(-1), other(INT64_MIN)}) {
        EXPECT_EQ(mouseDownType(row.button), row.down) << row.button;
        EXPECT_EQ(mouseUpType(row.button), row.up) << row.button;
        EXPECT_EQ(mouseDraggedType(row.button), row.dragged) << row.button;
        EXPECT_EQ(mouseButtonMaskOf(row.button), row.mask) << row.button;
    }
}

} // namespace
} // namespace brindlex
