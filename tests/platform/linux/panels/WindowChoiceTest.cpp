#include "platform/linux/panels/WindowChoice.h"

#include <gtest/gtest.h>

#include <climits>
#include <utility>

namespace brindlex {
namespace {

/// The chosen row and the first that is seen.
using Place = std::pair<std::size_t, std::size_t>;

Place placeOf(const WindowChoice& choice) { return {choice.chosen(), choice.first()}; }

TEST(WindowChoice, beginsWithTheWindowBeforeThePresentOne)
{
    EXPECT_EQ(rowToBeginWith(3, true), 1U);
    EXPECT_EQ(rowToBeginWith(3, false), 0U);
    EXPECT_EQ(rowToBeginWith(1, true), 0U);
}

TEST(WindowChoice, stepsAroundTheEnds)
{
    WindowChoice choice(3, 3, 2);

    choice.step(1);
    EXPECT_EQ(placeOf(choice), Place(0, 0));
    choice.step(-1);
    EXPECT_EQ(placeOf(choice), Place(2, 0));
}

TEST(WindowChoice, scrollsToTheChosenRow)
{
    WindowChoice choice(200, 10, 1);

    choice.step(9);
    EXPECT_EQ(placeOf(choice), Place(10, 1));
    choice.step(-10);
    EXPECT_EQ(placeOf(choice), Place(0, 0));
    choice.step(-1);
    EXPECT_EQ(placeOf(choice), Place(199, 190));
    choice.toFirst();
    EXPECT_EQ(placeOf(choice), Place(0, 0));
    choice.toLast();
    EXPECT_EQ(placeOf(choice), Place(199, 190));
}

TEST(WindowChoice, pagesToTheEndsAndNotAroundThem)
{
    WindowChoice choice(25, 10, 0);

    choice.page(1);
    EXPECT_EQ(placeOf(choice), Place(10, 1));
    choice.page(2);
    EXPECT_EQ(placeOf(choice), Place(24, 15));
    choice.page(-1);
    EXPECT_EQ(placeOf(choice), Place(14, 14));
    choice.page(-2);
    EXPECT_EQ(placeOf(choice), Place(0, 0));
}

TEST(WindowChoice, scrollsWithoutChoosing)
{
    WindowChoice choice(25, 10, 0);

    choice.scroll(3);
    EXPECT_EQ(placeOf(choice), Place(0, 3));
    choice.scroll(INT_MAX);
    EXPECT_EQ(placeOf(choice), Place(0, 15));
    choice.step(1);
    EXPECT_EQ(placeOf(choice), Place(1, 1));
    choice.scroll(INT_MIN);
    EXPECT_EQ(placeOf(choice), Place(1, 0));
}

TEST(WindowChoice, doesNotScrollWhatIsSeenWhole)
{
    WindowChoice choice(3, 10, 1);

    choice.scroll(1);

    EXPECT_EQ(placeOf(choice), Place(1, 0));
    EXPECT_EQ(choice.seen(), 3U);
}

TEST(WindowChoice, hasARowWhateverItIsMadeOf)
{
    WindowChoice choice(0, 0, 7);

    choice.step(1);
    choice.page(1);

    EXPECT_EQ(placeOf(choice), Place(0, 0));
}

} // namespace
} // namespace brindlex
