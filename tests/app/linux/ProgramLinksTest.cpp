#include "app/linux/ProgramLinks.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ProgramLinks, areNoneUnlessTheBuildIsGivenThem)
{
    const auto links = programLinks();

    EXPECT_EQ(links.website, "");
    EXPECT_EQ(links.support, "");
    EXPECT_EQ(links.privacyPolicy, "");
    EXPECT_EQ(links.termsOfService, "");
}

} // namespace
} // namespace brindlex
