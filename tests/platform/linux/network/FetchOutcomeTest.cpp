#include "platform/linux/network/FetchOutcome.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(FetchOutcome, isReadAsWritten)
{
    using Kind = HttpProblem::Kind;
    std::vector<Result<std::string, HttpProblem>> outcomes{
        std::string(), std::string("one\ntwo\0\xFF", 9)};
    for (const auto kind :
        {Kind::unreachable, Kind::timedOut, Kind::tooLarge, Kind::status, Kind::insecure})
        outcomes.push_back(fail(HttpProblem{kind, "words\nand more"}));
    for (const auto& outcome : outcomes)
        EXPECT_EQ(decodeFetchOutcome(encodeFetchOutcome(outcome)), outcome);
}

TEST(FetchOutcome, isAProblemForAnyOtherText)
{
    const Result<std::string, HttpProblem> none
        = fail(HttpProblem{HttpProblem::Kind::unreachable, "The fetcher has ended without a word"});
    for (const auto* text : {"", "content", "\n", "contents\n", "nonsense\nwords"})
        EXPECT_EQ(decodeFetchOutcome(text), none) << text;
}

} // namespace
} // namespace brindlex
