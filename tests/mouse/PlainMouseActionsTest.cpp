#include "mouse/PlainMouseActions.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace brindlex {
namespace {

TEST(PlainMouseActions, haveOneRowEachInTheirOrder)
{
    const auto rows = plainMouseActions();

    std::set<std::string> keys;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        EXPECT_EQ(rows[index].action, static_cast<MouseAction::Plain>(index));
        EXPECT_TRUE(keys.insert(rows[index].key).second) << rows[index].key;
        EXPECT_FALSE(rows[index].logLabel.empty()) << rows[index].key;
    }
    EXPECT_EQ(keys.size(), 6U);
}

TEST(PlainMouseActions, areFoundByTheirAction)
{
    for (const auto& row : plainMouseActions())
        EXPECT_EQ(plainMouseAction(row.action).key, row.key);
}

} // namespace
} // namespace brindlex
