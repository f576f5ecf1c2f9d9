#include "foundation/MadeOnFirstUse.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Counts how many of it were made, and stays where it is.
struct Counted {
    explicit Counted(int& count) { number = ++count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    int number = 0;
};

TEST(MadeOnFirstUse, isEmptyBefore)
{
    MadeOnFirstUse<Counted> place;

    EXPECT_EQ(place.ifMade(), nullptr);
}

TEST(MadeOnFirstUse, keepsTheOneThatItMade)
{
    int count = 0;
    MadeOnFirstUse<Counted> place;

    auto& made = place.get(count);

    EXPECT_EQ(made.number, 1);
    EXPECT_EQ(&place.get(count), &made);
    EXPECT_EQ(place.ifMade(), &made);
    EXPECT_EQ(count, 1);
}

} // namespace
} // namespace brindlex
