#include "platform/linux/bus/BusReachability.h"

#include "support/basics/TemporaryFolder.h"
#include "support/bus/PrivateBus.h"
#include "support/bus/SilentBus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

TEST(BusReachability, isThereForABusThatReplies)
{
    const PrivateBus bus;
    EXPECT_TRUE(isBusReplying(bus.address(), 20s));
    EXPECT_TRUE(isBusReplying("unix:path=/nonexistent/bus;" + bus.address(), 20s));
}

TEST(BusReachability, isNotThereWhereThereIsNoBus)
{
    const TemporaryFolder folder;
    write(folder.path() / "file", "");
    const std::vector<std::string> addresses{"", "autolaunch:", "nonsense",
        "unix:path=/nonexistent/bus", "unix:path=" + (folder.path() / "file").string()};
    for (const auto& address : addresses)
        EXPECT_FALSE(isBusReplying(address, 20s)) << address;
}

TEST(BusReachability, isNotThereForABusThatSaysNothing)
{
    const SilentBus silent;
    EXPECT_FALSE(isBusReplying(silent.address(), 100ms));

    PrivateBus frozen;
    frozen.freeze();
    EXPECT_FALSE(isBusReplying(frozen.address(), 100ms));
}

} // namespace
} // namespace brindlex
