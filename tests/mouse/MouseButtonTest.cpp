#include "mouse/MouseButton.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace brindlex {
namespace {

TEST(MouseButton, hasTheNumberAndTheLabelsOfItsRow)
{
    using Row = std::tuple<std::int64_t, std::string, std::string>;
    std::vector<Row> rows;
    for (const auto button : allCases<MouseButton>())
        rows.emplace_back(storedValue(button), logLabel(button), labelKey(button));

    const std::vector<Row> expected{
        {0, "Left Button", "mouse.button.left"},
        {1, "Right Button", "mouse.button.right"},
        {2, "Middle Button (3)", "mouse.button.middle"},
        {3, "Side Back (4)", "mouse.button.sideBack"},
        {4, "Side Forward (5)", "mouse.button.sideForward"},
    };
    EXPECT_EQ(rows, expected);
}

TEST(MouseButton, isNothingForAnyOtherNumber)
{
    EXPECT_EQ(mouseButtonWithNumber(4), MouseButton::button5);
    EXPECT_EQ(mouseButtonWithNumber(5), std::nullopt);
    EXPECT_EQ(mouseButtonWithNumber(-1), std::nullopt);
    EXPECT_EQ(mouseButtonWithNumber(INT64_MAX), std::nullopt);
}

TEST(MouseButton, isStoredAsItsNumber)
{
    EXPECT_EQ(toJson(MouseButton::button4), Json(3));
    EXPECT_EQ(fromJson<MouseButton>(Json(3)).value(), MouseButton::button4);
    EXPECT_FALSE(fromJson<MouseButton>(Json(5)));
    EXPECT_FALSE(fromJson<MouseButton>(Json("left")));
}

} // namespace
} // namespace brindlex
