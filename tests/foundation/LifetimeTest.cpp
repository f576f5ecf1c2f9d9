#include "foundation/Lifetime.h"

#include <gtest/gtest.h>

#include <optional>

namespace brindlex {
namespace {

TEST(Lifetime, isOverWithItsHolder)
{
    std::optional<Lifetime> lifetime(std::in_place);
    const auto one = lifetime->watch();
    const auto other = lifetime->watch();
    EXPECT_FALSE(one.expired());

    lifetime.reset();

    EXPECT_TRUE(one.expired());
    EXPECT_TRUE(other.expired());
}

} // namespace
} // namespace brindlex
