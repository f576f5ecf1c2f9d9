#include "catalogue/CatalogueFormat.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

using Arguments = std::vector<CatalogueArgument>;

TEST(CatalogueFormat, fillsInTextsAndWholeNumbersInTheirOrder)
{
    EXPECT_EQ(filledIn("%lld / %lld entries", Arguments{3, 5}), "3 / 5 entries");
    EXPECT_EQ(filledIn("Clear %@ log?", Arguments{"App"}), "Clear App log?");
    EXPECT_EQ(filledIn("%@", Arguments{""}), "");
    EXPECT_EQ(filledIn("%lld", Arguments{INT64_MIN}), "-9223372036854775808");
    EXPECT_EQ(filledIn("no place", {}), "no place");
}

TEST(CatalogueFormat, fillsInByPositionWhereATranslationNeedsAnotherOrder)
{
    EXPECT_EQ(filledIn("%2$@ von %1$lld", Arguments{7, "App"}), "App von 7");
    EXPECT_EQ(filledIn("%1$@ %1$@", Arguments{"a"}), "a a");
}

TEST(CatalogueFormat, takesWhatIsFilledInAsItIs)
{
    EXPECT_EQ(filledIn("%@ and %@", Arguments{"%@", "%lld"}), "%@ and %lld");
    EXPECT_EQ(filledIn("“%@”", Arguments{"é\xFF"}), "“é\xFF”");
}

TEST(CatalogueFormat, leavesAPlaceWithoutAnArgumentAndAnyOtherPercentSign)
{
    EXPECT_EQ(filledIn("%@ %@ %9$lld", Arguments{"a"}), "a %@ %9$lld");
    EXPECT_EQ(filledIn("50 % of 100%", {}), "50 % of 100%");
    EXPECT_EQ(filledIn("%%@", Arguments{"x"}), "%x");
    EXPECT_EQ(filledIn("%ll %d %0$@ %1$", Arguments{"x"}), "%ll %d %0$@ %1$");
}

TEST(CatalogueFormat, knowsWhichArgumentsATextTakes)
{
    static_assert(takesArguments<>("Close"));
    static_assert(takesArguments<int, long>("%lld / %lld entries"));
    static_assert(takesArguments<std::string, std::int64_t>("%@, %lld"));

    static_assert(!takesArguments<int>("Close"));
    static_assert(!takesArguments<>("%@"));
    static_assert(!takesArguments<int>("%@"));
    static_assert(!takesArguments<std::string>("%lld"));
    static_assert(!takesArguments<double>("%lld"));
    static_assert(!takesArguments<int, int>("%lld"));
}

} // namespace
} // namespace brindlex
