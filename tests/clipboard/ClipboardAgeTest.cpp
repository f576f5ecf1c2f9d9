#include "clipboard/ClipboardAge.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

constexpr Date timeOfCopy{800'000'000};

ClipboardAge ageAfter(Seconds seconds) { return clipboardAge(timeOfCopy, timeOfCopy + seconds); }

TEST(ClipboardAge, isInTheLargestUnitOfWhichThereIsOne)
{
    EXPECT_EQ(ageAfter(0), (ClipboardAge{ClipboardAge::Unit::seconds, 0}));
    EXPECT_EQ(ageAfter(1), (ClipboardAge{ClipboardAge::Unit::seconds, 1}));
    EXPECT_EQ(ageAfter(59.99), (ClipboardAge{ClipboardAge::Unit::seconds, 59}));
    EXPECT_EQ(ageAfter(60), (ClipboardAge{ClipboardAge::Unit::minutes, 1}));
    EXPECT_EQ(ageAfter(3'599), (ClipboardAge{ClipboardAge::Unit::minutes, 59}));
    EXPECT_EQ(ageAfter(3'600), (ClipboardAge{ClipboardAge::Unit::hours, 1}));
    EXPECT_EQ(ageAfter(86'399), (ClipboardAge{ClipboardAge::Unit::hours, 23}));
    EXPECT_EQ(ageAfter(86'400), (ClipboardAge{ClipboardAge::Unit::days, 1}));
    EXPECT_EQ(ageAfter(365.0 * 86'400), (ClipboardAge{ClipboardAge::Unit::days, 365}));
}

TEST(ClipboardAge, isNoneOfWhatIsYetToCome)
{
    EXPECT_EQ(ageAfter(-0.5), ClipboardAge{});
    EXPECT_EQ(ageAfter(-1e9), ClipboardAge{});
}

TEST(ClipboardAge, isSomethingOfEveryDate)
{
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(clipboardAge({notANumber}, timeOfCopy), ClipboardAge{});
    EXPECT_EQ(clipboardAge({infinity}, timeOfCopy), ClipboardAge{});
    EXPECT_EQ(clipboardAge({-infinity}, timeOfCopy),
        (ClipboardAge{ClipboardAge::Unit::days, 1'000'000'000}));
    EXPECT_EQ(clipboardAge({-1e300}, timeOfCopy),
        (ClipboardAge{ClipboardAge::Unit::days, 1'000'000'000}));
}

} // namespace
} // namespace brindlex
