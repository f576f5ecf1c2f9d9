#include "ui/controls/ChooserValues.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

enum class Wind { calm, breeze, gale };

constexpr auto storedValues(std::type_identity<Wind>)
{
    return std::array{
        std::pair{Wind::calm, 0}, std::pair{Wind::breeze, 3}, std::pair{Wind::gale, 8}};
}

enum class Tide { low, high };

TEST(ChooserValues, standForAValueAsItIsStored)
{
    EXPECT_EQ(optionOfValue(Wind::breeze), "3");
    EXPECT_EQ(valueWithOption<Wind>("8"), Wind::gale);
    EXPECT_EQ(valueWithOption<Wind>("7"), Wind::calm) << "nothing is stored so";
}

TEST(ChooserValues, standForAValueThatIsNeverStoredByItsNumber)
{
    EXPECT_EQ(optionOfValue(Tide::high), "1");
    EXPECT_EQ(valueWithOption<Tide>("1"), Tide::high);
}

TEST(ChooserValues, makeAnOptionOfEachValueInItsOrder)
{
    const auto name
        = [](Wind wind) { return wind == Wind::gale ? QString("Gale") : QString("Air"); };

    EXPECT_EQ(optionsOfValues(std::array{Wind::gale, Wind::calm}, name),
        (std::vector<Chooser::Option>{{"8", "Gale", {}}, {"0", "Air", {}}}));
    EXPECT_EQ(optionsOfAllValues<Wind>(name),
        (std::vector<Chooser::Option>{{"0", "Air", {}}, {"3", "Air", {}}, {"8", "Gale", {}}}));
}

} // namespace
} // namespace brindlex
