#include "platform/linux/inputsources/IBusSelection.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Request = IBusSelection::Request;
using Signal = IBusSelection::Signal;

/// One that knows what is selected.
IBusSelection with(const std::string& engine)
{
    IBusSelection selection;
    selection.start(engine);
    return selection;
}

TEST(IBusSelection, knowsNoEngineBeforeTheDaemonNamesOne)
{
    EXPECT_EQ(IBusSelection().engine(), std::nullopt);
    EXPECT_EQ(with("english").engine(), "english");
}

TEST(IBusSelection, callsForWhatIsRequestedAndIsSettledByTheReply)
{
    auto selection = with("english");

    EXPECT_TRUE(selection.request({"pinyin", 1}));
    EXPECT_EQ(selection.engine(), "pinyin");
    EXPECT_EQ(selection.beginCall(), (Request{"pinyin", 1}));
    EXPECT_TRUE(selection.endCall(/*isRefused*/ false));

    EXPECT_EQ(selection.engine(), "pinyin");
}

TEST(IBusSelection, doesNotCallForWhatIsSelected)
{
    auto selection = with("english");

    EXPECT_FALSE(selection.request({"english", 0}));

    EXPECT_EQ(selection.engine(), "english");
}

TEST(IBusSelection, callsForTheLastOfManyOnceTheFirstHasItsReply)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.request({"pinyin", 0}));
    selection.beginCall();

    EXPECT_FALSE(selection.request({"anthy", 0}));
    EXPECT_FALSE(selection.request({"english", 2}));
    EXPECT_EQ(selection.engine(), "english");
    EXPECT_FALSE(selection.endCall(/*isRefused*/ false));
    EXPECT_EQ(selection.engine(), "english");

    EXPECT_EQ(selection.beginCall(), (Request{"english", 2}));
    EXPECT_TRUE(selection.endCall(/*isRefused*/ false));
    EXPECT_EQ(selection.engine(), "english");
}

TEST(IBusSelection, isSettledByTheReplyForTheSameEngineRequestedTwice)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.request({"pinyin", 0}));
    selection.beginCall();

    EXPECT_FALSE(selection.request({"pinyin", 1}));

    EXPECT_TRUE(selection.endCall(/*isRefused*/ false));
    EXPECT_EQ(selection.engine(), "pinyin");
}

TEST(IBusSelection, staysWhereItWasWhenRefused)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.request({"pinyin", 0}));
    selection.beginCall();

    EXPECT_TRUE(selection.endCall(/*isRefused*/ true));

    EXPECT_EQ(selection.engine(), "english");
    EXPECT_EQ(selection.follow("anthy"), Signal::choice)
        << "The signal of what was refused is not waited for.";
    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, callsForTheLaterRequestWhenTheFirstIsRefused)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.request({"pinyin", 0}));
    selection.beginCall();
    ASSERT_FALSE(selection.request({"anthy", 0}));

    EXPECT_FALSE(selection.endCall(/*isRefused*/ true));

    EXPECT_EQ(selection.beginCall(), (Request{"anthy", 0}));
}

TEST(IBusSelection, followsWhatTheUserSelects)
{
    auto selection = with("english");

    EXPECT_EQ(selection.follow("pinyin"), Signal::choice);
    EXPECT_EQ(selection.follow("anthy"), Signal::choice);

    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, isNotLedBackByALateSignalOfItsOwn)
{
    auto selection = with("english");
    for (const auto* engine : {"pinyin", "anthy"}) {
        ASSERT_TRUE(selection.request({engine, 0}));
        selection.beginCall();
        ASSERT_TRUE(selection.endCall(/*isRefused*/ false));
    }

    EXPECT_EQ(selection.follow("pinyin"), Signal::echo);
    EXPECT_EQ(selection.engine(), "anthy");
    EXPECT_EQ(selection.follow("anthy"), Signal::choice);
    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, takesWhatWasRefusedAndComesAllTheSameForNobodysChoice)
{
    auto selection = with("english");
    selection.request({"pinyin", 0});
    selection.beginCall();
    selection.endCall(/*isRefused*/ true);

    EXPECT_EQ(selection.follow("pinyin"), Signal::late);
    EXPECT_EQ(selection.engine(), "pinyin");
    EXPECT_EQ(selection.follow("english"), Signal::choice);
    EXPECT_EQ(selection.follow("pinyin"), Signal::choice) << "It came once.";
}

TEST(IBusSelection, followsAForeignSignalWhateverOfItsOwnWasToCome)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.request({"pinyin", 0}));
    selection.beginCall();
    ASSERT_TRUE(selection.endCall(/*isRefused*/ false));

    EXPECT_EQ(selection.follow("anthy"), Signal::choice);

    EXPECT_EQ(selection.engine(), "anthy");
}

TEST(IBusSelection, namesTheRequestWhateverIsSelectedMeanwhile)
{
    auto selection = with("english");
    ASSERT_TRUE(selection.request({"pinyin", 0}));
    selection.beginCall();

    EXPECT_EQ(selection.follow("anthy"), Signal::choice);

    EXPECT_EQ(selection.engine(), "pinyin");
}

} // namespace
} // namespace brindlex
