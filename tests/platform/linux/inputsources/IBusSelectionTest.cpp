#include "platform/linux/inputsources/IBusSelection.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Wish = IBusSelection::Wish;

/// One that has been told what is selected.
IBusSelection with(const std::string& engine)
{
    IBusSelection selection;
    selection.begin(engine);
    return selection;
}

TEST(IBusSelection, knowsNoEngineBeforeTheDaemonNamesOne)
{
    EXPECT_EQ(IBusSelection().engine(), std::nullopt);
    EXPECT_EQ(with("english").engine(), "english");
}

TEST(IBusSelection, asksForWhatIsWantedAndIsSettledByTheAnswer)
{
    auto selection = with("english");

    EXPECT_TRUE(selection.want({"pinyin", 1}));
    EXPECT_EQ(selection.engine(), "pinyin");
    EXPECT_EQ(selection.ask(), (Wish{"pinyin", 1}));
    EXPECT_TRUE(selection.take(/*isRefused*/ false));

    EXPECT_EQ(selection.engine(), "pinyin");
}

TEST(IBusSelection, doesNotAskForWhatIsSelected)
{
    auto selection = with("english");

    EXPECT_FALSE(selection.want({"english", 0}));

    EXPECT_EQ(selection.engine(), "english");
}

TEST(IBusSelection, asksForTheLastOfManyOnceTheFirstIsAnswered)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.want({"pinyin", 0}));
    selection.ask();

    EXPECT_FALSE(selection.want({"anthy", 0}));
    EXPECT_FALSE(selection.want({"english", 2}));
    EXPECT_EQ(selection.engine(), "english");
    EXPECT_FALSE(selection.take(/*isRefused*/ false));
    EXPECT_EQ(selection.engine(), "english");

    EXPECT_EQ(selection.ask(), (Wish{"english", 2}));
    EXPECT_TRUE(selection.take(/*isRefused*/ false));
    EXPECT_EQ(selection.engine(), "english");
}

TEST(IBusSelection, isSettledByTheAnswerToTheSameEngineWantedTwice)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.want({"pinyin", 0}));
    selection.ask();

    EXPECT_FALSE(selection.want({"pinyin", 1}));

    EXPECT_TRUE(selection.take(/*isRefused*/ false));
    EXPECT_EQ(selection.engine(), "pinyin");
}

TEST(IBusSelection, staysWhereItWasWhenRefused)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.want({"pinyin", 0}));
    selection.ask();

    EXPECT_TRUE(selection.take(/*isRefused*/ true));

    EXPECT_EQ(selection.engine(), "english");
    EXPECT_TRUE(selection.hear("anthy")) << "The signal of what was refused is not waited for.";
    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, asksForTheLaterWishWhenTheFirstIsRefused)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.want({"pinyin", 0}));
    selection.ask();
    ASSERT_FALSE(selection.want({"anthy", 0}));

    EXPECT_FALSE(selection.take(/*isRefused*/ true));

    EXPECT_EQ(selection.ask(), (Wish{"anthy", 0}));
}

TEST(IBusSelection, followsWhatTheUserSelects)
{
    auto selection = with("english");

    EXPECT_TRUE(selection.hear("pinyin"));
    EXPECT_TRUE(selection.hear("anthy"));

    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, isNotLedBackByALateSignalOfItsOwn)
{
    auto selection = with("english");
    for (const auto* engine : {"pinyin", "anthy"}) {
        ASSERT_TRUE(selection.want({engine, 0}));
        selection.ask();
        ASSERT_TRUE(selection.take(/*isRefused*/ false));
    }

    EXPECT_FALSE(selection.hear("pinyin"));
    EXPECT_EQ(selection.engine(), "anthy");
    EXPECT_TRUE(selection.hear("anthy"));
    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, followsAForeignSignalWhateverOfItsOwnWasToCome)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.want({"pinyin", 0}));
    selection.ask();
    ASSERT_TRUE(selection.take(/*isRefused*/ false));

    EXPECT_TRUE(selection.hear("anthy"));

    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, namesTheWishWhateverIsHeardMeanwhile)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.want({"pinyin", 0}));
    selection.ask();

    EXPECT_TRUE(selection.hear("anthy"));

    EXPECT_EQ(selection.engine(), "pinyin");
}

} // namespace
} // namespace brindlex
