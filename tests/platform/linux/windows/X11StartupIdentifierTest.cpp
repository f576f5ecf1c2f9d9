#include "platform/linux/windows/X11StartupIdentifier.h"

#include "support/basics/ScopedEnvironment.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <unistd.h>

namespace brindlex {
namespace {

/// The time behind the process in an identifier; 0 in any other text.
std::uint64_t timeOf(const std::string& identifier)
{
    const auto beginning = "brindlex-" + std::to_string(getpid()) + "_TIME";
    return identifier.starts_with(beginning) ? std::stoull(identifier.substr(beginning.size())) : 0;
}

TEST(X11StartupIdentifier, hasTheTimeOfTheServer)
{
    const auto earlier = timeOf(startupIdentifierForNow());
    EXPECT_GT(earlier, 0U);
    EXPECT_GE(timeOf(startupIdentifierForNow()), earlier);
}

TEST(X11StartupIdentifier, isEmptyWithoutAServer)
{
    ScopedEnvironment environment;
    environment.set("DISPLAY", ":65000");
    EXPECT_EQ(startupIdentifierForNow(), "");
}

} // namespace
} // namespace brindlex
