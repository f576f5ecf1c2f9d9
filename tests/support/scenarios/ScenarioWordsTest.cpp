#include "support/scenarios/ScenarioWords.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace brindlex {
namespace {

constexpr std::array colours{std::pair{"red", 1}, std::pair{"green", 2}};

/// The problem after one reading of the text.
template <typename Reading>
std::string problemOf(const char* text, Reading reading)
{
    ScenarioWords words(text);
    reading(words);
    return words.problem().value_or("none");
}

TEST(ScenarioWords, areReadFromLeftToRight)
{
    ScenarioWords words("user selects  xkb:de::deu -3 2.5\t1500ms on green all  the rest");

    EXPECT_FALSE(words.take("user likes"));
    EXPECT_TRUE(words.isNext("user"));
    EXPECT_TRUE(words.take("user selects"));
    EXPECT_EQ(words.word(), "xkb:de::deu");
    EXPECT_EQ(words.wholeNumber(), -3);
    EXPECT_EQ(words.number(), 2.5);
    EXPECT_EQ(words.milliseconds(), 1500);
    EXPECT_TRUE(words.isOn());
    EXPECT_EQ(words.oneOf(colours), 2);
    EXPECT_FALSE(words.isAtEnd());
    EXPECT_EQ(words.rest(), "all the rest");
    EXPECT_TRUE(words.isAtEnd());
    EXPECT_EQ(words.problem(), std::nullopt);
}

TEST(ScenarioWords, areTakenWholeOnly)
{
    ScenarioWords words("echo by");
    EXPECT_FALSE(words.take("echo by hand"));
    EXPECT_FALSE(words.take("ech"));
    EXPECT_TRUE(words.take("echo by"));
}

TEST(ScenarioWords, nameTheOneThatDoesNotFit)
{
    const auto number = [](ScenarioWords& words) { words.number(); };
    const auto whole = [](ScenarioWords& words) { words.wholeNumber(); };
    const auto isOn = [](ScenarioWords& words) { words.isOn(); };
    const auto colour = [](ScenarioWords& words) { words.oneOf(colours); };
    const auto rest = [](ScenarioWords& words) { words.rest(); };

    EXPECT_EQ(problemOf("4x", number), "\"4x\" is no number");
    EXPECT_EQ(problemOf("2.5", whole), "\"2.5\" is no whole number");
    EXPECT_EQ(problemOf("maybe", isOn), "\"maybe\" is unknown");
    EXPECT_EQ(problemOf("blue", colour), "\"blue\" is unknown");
    EXPECT_EQ(problemOf("", rest), "a word is missing");
    EXPECT_EQ(problemOf("1 2", number), "\"2\" is one word too many");
}

TEST(ScenarioWords, haveTimesInWholeMillisecondsAlone)
{
    const auto time = [](ScenarioWords& words) { words.milliseconds(); };
    for (const std::string text :
        {"1s", "5", "ms", "-5ms", "1.5ms", "+5ms", "5MS", "99999999999ms"})
        EXPECT_EQ(problemOf(text.c_str(), time),
            "\"" + text + "\" is no time in whole milliseconds, such as 1500ms");
}

TEST(ScenarioWords, keepTheFirstProblem)
{
    ScenarioWords words("a b");
    words.number();
    words.number();
    words.refuse("later");
    EXPECT_EQ(words.problem(), "\"a\" is no number");
}

} // namespace
} // namespace brindlex
