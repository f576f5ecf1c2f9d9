#include "mouse/MouseCursorDiagnostic.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Item = MouseCursorDiagnosticItem;
using Snapshot = MouseCursorDiagnosticSnapshot;

Item item(std::string source, std::int64_t hash = 7)
{
    return {std::move(source), {}, Point{8, 8.25}, Size{16, 16}, hash};
}

TEST(MouseCursorDiagnosticItem, isEqualByWhatIsSeenAlone)
{
    auto named = item("current");
    named.matchedName = "resizeUp";

    EXPECT_EQ(item("currentSystem"), named);
    EXPECT_NE(item("current", 7), item("current", 8));
    EXPECT_NE(item("current"), (Item{"current", {}, Point{8, 8}, Size{16, 16}, 7}));
    EXPECT_NE(item("current"), (Item{"current", {}, Point{8, 8.25}, Size{16, 17}, 7}));
    EXPECT_NE(item("current"), Item{"current"});
    EXPECT_EQ(Item{"currentSystem"}, Item{"current"});
}

TEST(MouseCursorDiagnosticItem, writesNilForWhatIsAbsent)
{
    EXPECT_EQ(item("current", -5).text(),
        "current{matchedName=unknown hotSpot=8.0,8.2 imageSize=16.0x16.0 imageHash=-5}");
    EXPECT_EQ(Item{"currentSystem"}.text(),
        "currentSystem{matchedName=unknown hotSpot=nil imageSize=nil imageHash=nil}");
    EXPECT_EQ((Item{"current", "resizeUp", {}, {}, {}}).text(),
        "current{matchedName=resizeUp hotSpot=nil imageSize=nil imageHash=nil}");
}

TEST(MouseCursorDiagnosticSnapshot, isCustomWhenTwoUnknownCursorsDiffer)
{
    const Snapshot snapshot{item("currentSystem", 1), item("current", 2)};

    EXPECT_TRUE(snapshot.isCustomSystemCursor());
    EXPECT_EQ(snapshot.text(),
        "currentSystem=currentSystem{matchedName=unknown hotSpot=8.0,8.2 imageSize=16.0x16.0 "
        "imageHash=1} current=current{matchedName=unknown hotSpot=8.0,8.2 imageSize=16.0x16.0 "
        "imageHash=2} customSystemCursor=true");
}

TEST(MouseCursorDiagnosticSnapshot, isNotCustomOtherwise)
{
    const Snapshot differing{item("currentSystem", 1), item("current", 2)};

    EXPECT_FALSE((Snapshot{item("currentSystem"), item("current")}).isCustomSystemCursor());
    for (const auto half : {&Snapshot::currentSystem, &Snapshot::current}) {
        auto named = differing;
        (named.*half).matchedName = "resizeUp";
        EXPECT_FALSE(named.isCustomSystemCursor());
        auto withoutHotSpot = differing;
        (withoutHotSpot.*half).hotSpot.reset();
        EXPECT_FALSE(withoutHotSpot.isCustomSystemCursor());
        auto withoutSize = differing;
        (withoutSize.*half).imageSize.reset();
        EXPECT_FALSE(withoutSize.isCustomSystemCursor());
    }
    auto withoutHash = differing;
    withoutHash.current.imageHash.reset();
    EXPECT_TRUE(withoutHash.isCustomSystemCursor());
}

} // namespace
} // namespace brindlex
