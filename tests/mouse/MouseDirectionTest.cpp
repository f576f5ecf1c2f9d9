#include "mouse/MouseDirection.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace brindlex {
namespace {

TEST(MouseDirection, hasTheStoredValueAndTheLabelsOfItsRow)
{
    using Row = std::tuple<std::string, std::string, std::string>;
    std::vector<Row> rows;
    for (const auto direction : allCases<MouseDirection>())
        rows.emplace_back(storedValue(direction), logLabel(direction), labelKey(direction));

    const std::vector<Row> expected{
        {"up", "Up", "mouse.direction.up"},
        {"down", "Down", "mouse.direction.down"},
        {"left", "Left", "mouse.direction.left"},
        {"right", "Right", "mouse.direction.right"},
    };
    EXPECT_EQ(rows, expected);
}

TEST(MouseDirection, isStoredAsItsWord)
{
    EXPECT_EQ(toJson(MouseDirection::down), Json("down"));
    EXPECT_EQ(fromJson<MouseDirection>(Json("left")).value(), MouseDirection::left);
    EXPECT_FALSE(fromJson<MouseDirection>(Json("Left")));
    EXPECT_FALSE(fromJson<MouseDirection>(Json(0)));
}

} // namespace
} // namespace brindlex
