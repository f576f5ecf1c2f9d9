#include "platform/DockSwipe.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace brindlex {
namespace {

TEST(DockSwipe, encodesItsProgress)
{
    const std::vector<std::pair<double, std::int64_t>> rows{
        {0.0, 2147483648},
        {-0.0, 2147483648},
        {1.0, 3207483648},
        {-1.0, 1060000000},
        // sqrt(1 - 0.05²) * 80000000 + 980000000, the fraction cut off
        {0.95, 1059899937 + 2147483648},
        {1.05, 1060200000 + 2147483648},
        {1.25, 1061000000 + 2147483648},
        {-1.25, 1061000000},
        {1.5, 1062000000 + 2147483648},
        {-1.5, 1062000000},
        {1.75, 1062000000 + 2147483648},
        {-100, 1062000000},
        // sqrt(0.75) * 80000000 + 980000000, the fraction cut off
        {-0.5, 1049282032},
        {0.5, 1049282032 + 2147483648},
    };
    for (const auto& [progress, encoded] : rows)
        EXPECT_EQ(encodedDockProgress(progress), encoded) << progress;
}

TEST(DockSwipe, isEightFieldsInOneOrder)
{
    const auto event = dockSwipeEvent(DockSwipePhase::changed, 1.0);

    EXPECT_EQ(event,
        (SyntheticEvent{EventType{30}, {}, {},
            {{EventField{110}, 23}, {EventField{132}, 2}, {EventField{134}, 2},
                {EventField{136}, 1}, {EventField{138}, 3}, {EventField{123}, 0},
                {EventField{135}, 3207483648}, {EventField{165}, 1}}}));
}

TEST(DockSwipe, hasTheSameDirectionFieldToBothSides)
{
    for (const double progress : {1.25, -1.25, 0.0}) {
        const auto event = dockSwipeEvent(DockSwipePhase::ended, progress);
        EXPECT_EQ(event.fields.value(EventField{165}), 1);
        EXPECT_EQ(event.fields.value(EventField{132}), 4);
        EXPECT_EQ(event.fields.value(EventField{134}), 4);
    }
}

using Direction = DockSwipeReader::Direction;

TEST(DockSwipeReader, returnsTheDirectionOncePerSwipe)
{
    DockSwipeReader reader;
    for (const auto& [sign, direction] :
        {std::pair{1.0, Direction::right}, std::pair{-1.0, Direction::left}}) {
        EXPECT_EQ(reader.read({EventType::gesture, {}, {}, {}}), std::nullopt);
        EXPECT_EQ(reader.read(dockSwipeEvent(DockSwipePhase::began, 0)), std::nullopt);
        EXPECT_EQ(reader.read(dockSwipeEvent(DockSwipePhase::changed, 0 * sign)), std::nullopt);
        EXPECT_EQ(reader.read(dockSwipeEvent(DockSwipePhase::changed, 0.003 * sign)), direction);
        EXPECT_EQ(reader.read(dockSwipeEvent(DockSwipePhase::changed, 0.9 * sign)), std::nullopt);
        EXPECT_EQ(reader.read(dockSwipeEvent(DockSwipePhase::ended, 1.25 * sign)), std::nullopt);
    }
}

TEST(DockSwipeReader, returnsItAtTheEndWhenNoFrameCameBetween)
{
    DockSwipeReader reader;
    reader.read(dockSwipeEvent(DockSwipePhase::began, 0));

    EXPECT_EQ(reader.read(dockSwipeEvent(DockSwipePhase::ended, -1.25)), Direction::left);
}

TEST(DockSwipeReader, leavesOtherGesturesAlone)
{
    DockSwipeReader reader;
    auto event = dockSwipeEvent(DockSwipePhase::ended, 1.25);
    event.fields.set(EventField{110}, 22);

    EXPECT_EQ(reader.read(event), std::nullopt);
    EXPECT_EQ(reader.read({EventType::keyDown, {}, {}, {}}), std::nullopt);
}

} // namespace
} // namespace brindlex
