#include "app/linux/ProgramBuild.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace brindlex {
namespace {

TEST(ProgramBuild, knowsItsNameAndVersionAndNoFeedUnlessItIsGivenOne)
{
    const auto program = programBuild();
    EXPECT_EQ(program.name, "Brindlex");
    EXPECT_EQ(std::count(program.shortVersion.begin(), program.shortVersion.end(), '.'), 2);
    EXPECT_EQ(program.updateFeedURL, "");
}

TEST(ProgramBuild, knowsItsCommitInARepository)
{
    const auto commit = programBuild().commit;
    EXPECT_TRUE(commit.empty() || commit.size() >= 7) << commit;
    EXPECT_TRUE(std::all_of(commit.begin(), commit.end(), [](unsigned char character) {
        return std::isxdigit(character) != 0;
    })) << commit;
}

TEST(ProgramBuild, knowsTheFileThatRuns)
{
    EXPECT_TRUE(runningProgramFile().is_absolute());
    EXPECT_TRUE(std::filesystem::is_regular_file(runningProgramFile()));
}

} // namespace
} // namespace brindlex
