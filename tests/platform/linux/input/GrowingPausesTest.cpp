#include "platform/linux/input/GrowingPauses.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(GrowingPauses, doubleUpToAFewSeconds)
{
    GrowingPauses pauses;
    std::vector<Seconds> first;
    for (int attempt = 0; attempt < 9; ++attempt)
        first.push_back(pauses.next());

    EXPECT_EQ(first, (std::vector<Seconds>{0.05, 0.1, 0.2, 0.4, 0.8, 1.6, 3.2, 3.2, 3.2}));
}

} // namespace
} // namespace brindlex
