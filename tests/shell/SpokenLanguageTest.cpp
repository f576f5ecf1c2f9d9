#include "shell/SpokenLanguage.h"

#include "platform/simulated/SimulatedUserDefaults.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

std::string spokenWith(std::vector<std::string> chosen, const std::vector<std::string>& system)
{
    SimulatedUserDefaults defaults;
    if (!chosen.empty())
        defaults.set("AppleLanguages", std::move(chosen));
    return spokenLanguage(defaults, system);
}

TEST(SpokenLanguage, isTheChosenOneBeforeThatOfTheSystem)
{
    EXPECT_EQ(spokenWith({"zh-Hant"}, {"de_AT.UTF-8"}), "zh-Hant");
}

TEST(SpokenLanguage, isThatOfTheSystemWhereNoneIsChosen)
{
    EXPECT_EQ(spokenWith({}, {"de_AT.UTF-8"}), "de");
}

TEST(SpokenLanguage, isThatOfTheSystemWhereTheProgramDoesNotKnowTheChosenOnes)
{
    EXPECT_EQ(spokenWith({"tlh", "eo"}, {"fr_FR.UTF-8"}), "fr");
}

TEST(SpokenLanguage, isEnglishWhereNothingIsKnown)
{
    EXPECT_EQ(spokenWith({}, {}), "en");
    EXPECT_EQ(spokenWith({}, {"tlh_QO"}), "en");
}

} // namespace
} // namespace brindlex
