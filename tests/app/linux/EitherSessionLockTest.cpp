#include "app/linux/EitherSessionLock.h"

#include "platform/simulated/SimulatedSessionLock.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(EitherSessionLock, isLockedWhenOneOfTheTwoIs)
{
    const auto one = std::make_shared<SimulatedSessionLock>();
    const auto other = std::make_shared<SimulatedSessionLock>();
    EitherSessionLock lock(one, other);

    EXPECT_FALSE(lock.isLocked());
    one->locked = true;
    EXPECT_TRUE(lock.isLocked());
    other->locked = true;
    EXPECT_TRUE(lock.isLocked());
    one->locked = false;
    EXPECT_TRUE(lock.isLocked());
}

} // namespace
} // namespace brindlex
