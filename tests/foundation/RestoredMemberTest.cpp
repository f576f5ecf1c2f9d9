#include "foundation/RestoredMember.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace brindlex {
namespace {

using Member = std::pair<int, std::string>;
using Members = std::vector<Member>;

TEST(RestoredMember, isInItsPlaceAgain)
{
    Members members{{1, "one"}, {3, "three"}};

    restoreMember(members, {2, "two"}, 1, &Member::first);

    EXPECT_EQ(members, (Members{{1, "one"}, {2, "two"}, {3, "three"}}));
}

TEST(RestoredMember, isAtTheEndOfAListThatHasBecomeShorter)
{
    Members members{{1, "one"}};

    restoreMember(members, {2, "two"}, 5, &Member::first);

    EXPECT_EQ(members, (Members{{1, "one"}, {2, "two"}}));
}

TEST(RestoredMember, isLeftOutWhereThereIsAnotherOfItsIdentity)
{
    Members members{{2, "another"}};

    restoreMember(members, {2, "two"}, 0, [](const Member& member) { return member.first; });

    EXPECT_EQ(members, (Members{{2, "another"}}));
}

} // namespace
} // namespace brindlex
