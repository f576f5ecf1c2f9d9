#include "foundation/Result.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

using Parsed = Result<int, std::string>;

TEST(Result, holdsAValue)
{
    const Parsed result = 5;

    EXPECT_TRUE(result);
    EXPECT_EQ(result.value(), 5);
    EXPECT_EQ(*result, 5);
}

TEST(Result, holdsAProblem)
{
    const Parsed result = fail("is no number");

    EXPECT_FALSE(result);
    EXPECT_EQ(result.error(), "is no number");
}

TEST(Result, keepsTheSidesApartWhenTheirTypesAreTheSame)
{
    const Result<std::string, std::string> value = std::string("text");
    const Result<std::string, std::string> problem = fail(std::string("text"));

    EXPECT_TRUE(value);
    EXPECT_FALSE(problem);
    EXPECT_NE(value, problem);
    EXPECT_EQ(value.value(), problem.error());
}

TEST(Result, comparesSideAndContent)
{
    EXPECT_EQ(Parsed(5), Parsed(5));
    EXPECT_NE(Parsed(5), Parsed(6));
    EXPECT_EQ(Parsed(fail("a")), Parsed(fail("a")));
    EXPECT_NE(Parsed(fail("a")), Parsed(fail("b")));
    EXPECT_NE(Parsed(5), Parsed(fail("a")));
}

TEST(Result, givesAccessToTheMembersOfItsValue)
{
    const Result<std::string, int> result = std::string("four");
    EXPECT_EQ(result->size(), 4u);
}

TEST(Result, succeedsWithoutAValue)
{
    const Result<Done, std::string> done = Done{};
    EXPECT_TRUE(done);
}

} // namespace
} // namespace brindlex
