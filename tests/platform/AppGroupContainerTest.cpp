#include "platform/posix/PosixAppGroupContainer.h"
#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

template <typename Container>
class AppGroupContainerContract : public testing::Test {
protected:
    TemporaryFolder folder;
};

using Containers = testing::Types<SimulatedAppGroupContainer, PosixAppGroupContainer>;
TYPED_TEST_SUITE(AppGroupContainerContract, Containers);

TYPED_TEST(AppGroupContainerContract, isAFolderThatWasThere)
{
    TypeParam container(this->folder.path());
    EXPECT_EQ(container.appGroupContainerURL(), this->folder.path());
}

TYPED_TEST(AppGroupContainerContract, isMadeWithWhatIsMissingAboveIt)
{
    const auto path = this->folder.path() / "share" / "group.com.brindlex.Brindlex";
    TypeParam container(path);

    EXPECT_EQ(container.appGroupContainerURL(), path);
    EXPECT_TRUE(fs::is_directory(path));
}

TYPED_TEST(AppGroupContainerContract, isMadeAgainWhenItWasRemoved)
{
    const auto path = this->folder.path() / "container";
    TypeParam container(path);
    EXPECT_EQ(container.appGroupContainerURL(), path);
    fs::remove(path);

    EXPECT_EQ(container.appGroupContainerURL(), path);
    EXPECT_TRUE(fs::is_directory(path));
}

TYPED_TEST(AppGroupContainerContract, isAbsentWhereAFileStandsInItsPlaceOrAboveIt)
{
    const auto file = this->folder.path() / "file";
    write(file, "content");

    EXPECT_EQ(TypeParam(file).appGroupContainerURL(), std::nullopt);
    EXPECT_EQ(TypeParam(file / "below").appGroupContainerURL(), std::nullopt);
    EXPECT_EQ(TypeParam("/proc/brindlex").appGroupContainerURL(), std::nullopt);
    EXPECT_EQ(contentOf(file), "content");
}

TYPED_TEST(AppGroupContainerContract, appearsWhenTheObstacleGoes)
{
    const auto path = this->folder.path() / "container";
    write(path, "in the way");
    TypeParam container(path);
    EXPECT_EQ(container.appGroupContainerURL(), std::nullopt);
    fs::remove(path);

    EXPECT_EQ(container.appGroupContainerURL(), path);
}

TYPED_TEST(AppGroupContainerContract, servesManyThreads)
{
    const auto path = this->folder.path() / "a" / "b" / "c";
    TypeParam container(path);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([&] {
            for (int round = 0; round < 100; ++round)
                EXPECT_EQ(container.appGroupContainerURL(), path);
        });
    for (auto& thread : threads)
        thread.join();
}

} // namespace
} // namespace brindlex
