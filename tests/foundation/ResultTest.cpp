#include "foundation/Result.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

using Number = Result<int, std::string>;

TEST(Result, holdsAValue)
{
    const Number result = 5;

    EXPECT_TRUE(result);
    EXPECT_EQ(result.value(), 5);
    EXPECT_EQ(*result, 5);
}

TEST(Result, holdsAProblem)
{
    const Number result = fail("is no number");

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
    EXPECT_EQ(Number(5), Number(5));
    EXPECT_NE(Number(5), Number(6));
    EXPECT_EQ(Number(fail("a")), Number(fail("a")));
    EXPECT_NE(Number(fail("a")), Number(fail("b")));
    EXPECT_NE(Number(5), Number(fail("a")));
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
