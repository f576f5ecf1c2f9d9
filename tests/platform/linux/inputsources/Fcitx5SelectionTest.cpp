#include "platform/linux/inputsources/Fcitx5SelectionSteps.h"

#include <optional>
#include <string>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Change = Fcitx5Selection::Change;
using Verdict = Fcitx5Selection::Verdict;

TEST(Fcitx5Selection, knowsNothingBeforeItHasRead)
{
    const Fcitx5Selection selection;

    EXPECT_FALSE(selection.hasRead());
    EXPECT_FALSE(selection.isKeeping());
    EXPECT_EQ(selection.method(), std::nullopt);
    EXPECT_TRUE(selection.isStale({}));
}

TEST(Fcitx5Selection, followsWhatIsReadAndNotifiesOfChangesAlone)
{
    Fcitx5Selection selection;

    EXPECT_EQ(selection.take(observed(context, "pinyin"), start), Change::context);
    EXPECT_EQ(selection.method(), "pinyin");
    EXPECT_EQ(selection.take(observed(context, "pinyin"), start + 1s), Change::none);
    EXPECT_EQ(selection.take(observed(context, "anthy"), start + 2s), Change::choice);
    EXPECT_EQ(selection.method(), "anthy");
}

TEST(Fcitx5Selection, takesTheMethodOfAnotherContextForNobodysChoice)
{
    auto selection = following("pinyin");

    EXPECT_EQ(selection.take(observed(anotherContext, "anthy"), start + 1s), Change::context);
    EXPECT_EQ(selection.take(observed(anotherContext, "pinyin"), start + 2s), Change::choice);
    EXPECT_EQ(selection.take(observed(context, "pinyin"), start + 3s), Change::none);
    EXPECT_EQ(selection.take(observed(context, "anthy"), start + 4s), Change::choice)
        << "The context is known although it had brought the same method.";
}

TEST(Fcitx5Selection, believesNothingThatIsReadWhileTheKeyboardMovesOrTheDaemonFails)
{
    auto selection = following("pinyin");

    EXPECT_EQ(selection.take({context, anotherContext, "anthy", 0}, start + 1s), Change::none);
    EXPECT_EQ(selection.take({context, context, std::nullopt, 0}, start + 1s), Change::none);

    EXPECT_EQ(selection.method(), "pinyin");
    EXPECT_TRUE(selection.isStale(start + 1s));
    EXPECT_EQ(selection.take(observed(anotherContext, "anthy"), start + 2s), Change::context);
}

TEST(Fcitx5Selection, takesWhatWasSelectedDuringAPauseForNobodysChoice)
{
    auto selection = following("pinyin");
    const auto read = selection.beginRead();
    ASSERT_TRUE(read);

    selection.pause();

    EXPECT_EQ(selection.method(), "pinyin") << "Nothing better is known.";
    EXPECT_TRUE(selection.hasRead());
    EXPECT_FALSE(selection.endRead(*read)) << "It may be from before what was selected.";
    EXPECT_EQ(selection.take(observed(context, "anthy"), start + 1s), Change::context);
    EXPECT_EQ(selection.take(observed(context, "pinyin"), start + 2s), Change::choice);
}

TEST(Fcitx5Selection, notifiesOfNothingWhenAPauseHasChangedNothing)
{
    for (const std::string method : {"pinyin", ""}) {
        auto selection = following(method);

        selection.pause();

        EXPECT_EQ(selection.take(observed(method.empty() ? "" : context, method), start + 1s),
            Change::none);
        EXPECT_EQ(selection.take(observed(context, "anthy"), start + 2s),
            method.empty() ? Change::context : Change::choice);
    }
}

TEST(Fcitx5Selection, hasNoMethodWhileNoWindowTypes)
{
    Fcitx5Selection selection;

    EXPECT_EQ(selection.take(observed("", ""), start), Change::context)
        << "That there is none is news at first.";
    EXPECT_TRUE(selection.hasRead());
    EXPECT_EQ(selection.method(), std::nullopt);
    EXPECT_EQ(selection.take(observed("", ""), start + 1s), Change::none);
    EXPECT_EQ(selection.take(observed(context, "pinyin"), start + 2s), Change::context);
}

TEST(Fcitx5Selection, isStaleAfterFiftyMilliseconds)
{
    const auto selection = following("pinyin");

    EXPECT_FALSE(selection.isStale(start));
    EXPECT_FALSE(selection.isStale(start + 50ms));
    EXPECT_TRUE(selection.isStale(start + 50ms + 1ns));
    EXPECT_FALSE(selection.isStale(start - 1s)) << "Time went backwards.";
}

TEST(Fcitx5Selection, isFreshAgainWithEachReadThatSaysTheSame)
{
    auto selection = following("pinyin");

    selection.take(observed(context, "pinyin"), start + 50ms);

    EXPECT_FALSE(selection.isStale(start + 100ms));
}

TEST(Fcitx5Selection, readsOnceAtATime)
{
    Fcitx5Selection selection;

    const auto read = selection.beginRead();
    ASSERT_TRUE(read);
    EXPECT_EQ(selection.beginRead(), std::nullopt);
    EXPECT_TRUE(selection.endRead(*read));
    EXPECT_TRUE(selection.beginRead());
}

TEST(Fcitx5Selection, checksNothingWhileItFollows)
{
    auto selection = following("pinyin");

    EXPECT_EQ(selection.beginCheck(), std::nullopt);
}

TEST(Fcitx5Selection, namesTheMethodOfTheSelectionFromItsRequestOn)
{
    auto selection = following("keyboard-us");

    selection.select("pinyin", window, start);

    EXPECT_TRUE(selection.isKeeping());
    EXPECT_EQ(selection.method(), "pinyin");
    EXPECT_FALSE(selection.isStale(start + 1h)) << "Nothing is read in its place.";
}

TEST(Fcitx5Selection, ignoresAReadFromBeforeTheSelection)
{
    auto selection = following("keyboard-us");
    const auto read = selection.beginRead();
    ASSERT_TRUE(read);

    selection.select("pinyin", window, start);

    EXPECT_EQ(selection.beginRead(), std::nullopt) << "The late read is still under way.";
    EXPECT_FALSE(selection.endRead(*read));
    EXPECT_EQ(selection.method(), "pinyin");
    EXPECT_TRUE(selection.beginRead());
}

TEST(Fcitx5Selection, isConfirmedByTheMethodOrByNone)
{
    for (const std::string read : {"pinyin", ""}) {
        auto selection = following("keyboard-us");
        EXPECT_TRUE(
            selection.acknowledge(selection.select("pinyin", window, start), context, context));
        selection.take(observed(context, read), start);

        EXPECT_EQ(selection.confirm(/*isReplyAnError*/ false), SelectionStatus::done) << read;

        EXPECT_TRUE(selection.isKeeping()) << read;
        EXPECT_EQ(selection.method(), "pinyin") << read;
    }
}

TEST(Fcitx5Selection, isRefusedByAnotherMethod)
{
    auto selection = following("keyboard-us");
    selection.acknowledge(selection.select("pinyin", window, start), context, context);
    selection.take(observed(context, "keyboard-us"), start);

    EXPECT_EQ(selection.confirm(/*isReplyAnError*/ false), SelectionStatus::refused);

    EXPECT_FALSE(selection.isKeeping());
    EXPECT_EQ(selection.method(), "keyboard-us");
}

TEST(Fcitx5Selection, isNotConnectedAfterAnErrorWhateverWasReadBefore)
{
    for (const std::string read : {"pinyin", "keyboard-us", ""}) {
        auto selection = following(read);
        selection.acknowledge(selection.select("pinyin", window, start), "", "");

        EXPECT_EQ(selection.confirm(/*isReplyAnError*/ true), SelectionStatus::notConnected);

        EXPECT_FALSE(selection.isKeeping());
        EXPECT_EQ(selection.method(), following(read).method());
    }
}

TEST(Fcitx5Selection, isCheckedAfterALateReplyUnlessAnotherCameMeanwhile)
{
    auto selection = following("keyboard-us");
    const int first = selection.select("pinyin", window, start);
    const int second = selection.select("anthy", window, start + 100ms);

    EXPECT_FALSE(selection.acknowledge(first, context, context));
    EXPECT_TRUE(selection.acknowledge(second, context, context));

    EXPECT_EQ(check(selection, observed(context, "keyboard-us"), start + 200ms), Verdict::chosen)
        << "The context is the one at the second request.";
}

TEST(Fcitx5Selection, isNotCheckedAfterAReplyThatComesWhenItIsOver)
{
    auto selection = following("keyboard-us");
    const int late = selection.select("pinyin", window, start);
    ASSERT_EQ(check(selection, observed(context, "anthy", anotherWindow), start), Verdict::left);

    EXPECT_FALSE(selection.acknowledge(late, context, context));

    EXPECT_FALSE(selection.isKeeping());
    EXPECT_EQ(selection.method(), "anthy");
}

TEST(Fcitx5Selection, replacesTheSelectionThatIsKept)
{
    auto selection = keeping();

    const int second = selection.select("anthy", anotherWindow, start + 200ms);
    EXPECT_TRUE(selection.acknowledge(second, anotherContext, anotherContext));

    EXPECT_EQ(selection.method(), "anthy");
    EXPECT_EQ(check(selection, observed(anotherContext, "anthy", anotherWindow), start + 400ms),
        Verdict::keep)
        << "300 ms from the second one.";
}

} // namespace
} // namespace brindlex
