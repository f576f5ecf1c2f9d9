#include "platform/AppGroupFolders.h"

#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(AppGroupFolders, makesTheThreeWithTheirParents)
{
    TemporaryFolder temporary;
    SimulatedAppGroupContainer container(temporary.path() / "not" / "yet");

    makeAppGroupFolders(container);

    for (const auto* name : {"Logs", "Config", "Pending"})
        EXPECT_TRUE(is_directory(temporary.path() / "not" / "yet" / name)) << name;
}

TEST(AppGroupFolders, stopsAtTheFirstThatCannotBeHad)
{
    TemporaryFolder temporary;
    write(temporary.path() / "Config", "a file");
    SimulatedAppGroupContainer container(temporary.path());

    makeAppGroupFolders(container);

    EXPECT_TRUE(is_directory(temporary.path() / "Logs"));
    EXPECT_EQ(contentOf(temporary.path() / "Config"), "a file");
    EXPECT_FALSE(exists(temporary.path() / "Pending"));
}

TEST(AppGroupFolders, returnsNothingWithoutAContainer)
{
    SimulatedAppGroupContainer none;

    EXPECT_EQ(appGroupFolder(none, "Logs"), std::nullopt);
}

} // namespace
} // namespace brindlex
