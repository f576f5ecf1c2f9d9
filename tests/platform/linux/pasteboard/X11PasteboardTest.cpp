#include "platform/linux/pasteboard/X11Pasteboard.h"

#include "platform/linux/pasteboard/X11PasteboardFixture.h"
#include "support/basics/RecordedLog.h"

namespace brindlex {
namespace {

using Manners = SelectionOwner::Manners;
using Texts = std::vector<std::string>;

struct X11PasteboardTest : X11PasteboardFixture {
    /// What is there once the application has been heard or given up.
    PasteboardState stateOfOwner(Manners manners)
    {
        const auto before = pasteboard->changeCount();
        owner = std::make_unique<SelectionOwner>(SelectionOwner::Offer{
            {{"UTF8_STRING", std::string(10'000, 'x')}, {"text/html", "<b>"}}, manners});
        EXPECT_TRUE(loop.runUntil([&] { return pasteboard->changeCount() > before; }));
        return {.types = pasteboard->types(),
            .text = pasteboard->text(),
            .filePaths = pasteboard->filePaths()};
    }

    const PasteboardState typesOnly{.types = {"public.utf8-plain-text", "public.html"}};
    RecordedLog log;
};

TEST_F(X11PasteboardTest, readsWhatComesInPieces)
{
    std::string text;
    while (text.size() < 900'000)
        text += std::to_string(text.size()) + " é漢\n";
    copy({{"UTF8_STRING", text}});
    EXPECT_EQ(pasteboard->text(), text);
    EXPECT_EQ(owner->sentPieces(), 11);
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(X11PasteboardTest, requestsOnlyWhatIsRecorded)
{
    copy({{"text/html", "<b>text</b>"}, {"UTF8_STRING", "text"}, {"STRING", "text"}});
    EXPECT_EQ(owner->requested(), (Texts{"TARGETS", "UTF8_STRING"}));
}

TEST_F(X11PasteboardTest, givesUpAnApplicationThatIsSilent)
{
    EXPECT_EQ(stateOfOwner(Manners::silent), PasteboardState{});
    EXPECT_EQ(log.lines(),
        Texts{"WARN [clipboard] X11Pasteboard: what was copied cannot be read: TARGETS: nothing "
              "has come for 200 ms"});
}

TEST_F(X11PasteboardTest, givesUpAnApplicationThatDoesNotSendWhatItHas)
{
    EXPECT_EQ(stateOfOwner(Manners::silentAfterTargets), typesOnly);
    EXPECT_EQ(log.lines(),
        Texts{"WARN [clipboard] X11Pasteboard: what was copied cannot be read: UTF8_STRING: "
              "nothing has come for 200 ms"});
}

TEST_F(X11PasteboardTest, givesUpAnApplicationThatStopsBetweenPieces)
{
    EXPECT_EQ(stateOfOwner(Manners::silentInPieces), typesOnly);
    EXPECT_EQ(owner->sentPieces(), 1);
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(X11PasteboardTest, stopsReadingAtTheLimit)
{
    const auto line = Texts{"WARN [clipboard] X11Pasteboard: what was copied cannot be read: "
                            "UTF8_STRING: it is larger than 1 MiB"};
    EXPECT_EQ(stateOfOwner(Manners::endless), typesOnly);
    EXPECT_GE(owner->sentPieces(), 105) << "1 MiB in pieces of 10,000 bytes";
    EXPECT_LE(owner->sentPieces(), 106);
    EXPECT_EQ(log.lines(), line);
}

TEST_F(X11PasteboardTest, doesNotBeginToReadWhatIsAnnouncedAsTooLarge)
{
    EXPECT_EQ(stateOfOwner(Manners::boastful), typesOnly);
    EXPECT_LE(owner->sentPieces(), 1);
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(X11PasteboardTest, takesARefusalForAnEnd)
{
    EXPECT_EQ(stateOfOwner(Manners::refusing), typesOnly);
    EXPECT_EQ(log.lines(),
        Texts{"WARN [clipboard] X11Pasteboard: what was copied cannot be read: UTF8_STRING: the "
              "application does not send it"});
}

TEST_F(X11PasteboardTest, leavesOutTargetsThatNobodyKnows)
{
    EXPECT_EQ(stateOfOwner(Manners::confused).text, std::string(10'000, 'x'));
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(X11PasteboardTest, logsOneOfManyProblems)
{
    for (const auto manners : {Manners::silent, Manners::refusing, Manners::endless})
        stateOfOwner(manners);
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(X11PasteboardTest, readsTheNextCopyWhileAnApplicationIsSilent)
{
    makePasteboard({.silence = std::chrono::hours(1), .owner = std::chrono::hours(1)});
    const SelectionOwner silent({{{"UTF8_STRING", "never"}}, Manners::silent});
    ASSERT_TRUE(eventually([&] { return silent.requested() == Texts{"TARGETS"}; }));
    copy({{"UTF8_STRING", "text"}});
    EXPECT_EQ(pasteboard->text(), "text");
    const SelectionOwner stopping({{{"UTF8_STRING", "never"}}, Manners::silentInPieces});
    ASSERT_TRUE(eventually([&] { return stopping.sentPieces() == 1; }));
    copy({{"UTF8_STRING", "another"}});
    EXPECT_EQ(pasteboard->text(), "another");
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(X11PasteboardTest, hasNothingOfAnApplicationThatEndsBetweenPieces)
{
    makePasteboard({.silence = std::chrono::hours(1), .owner = std::chrono::hours(1)});
    copy({{"UTF8_STRING", "before"}});
    const auto before = pasteboard->changeCount();
    owner = std::make_unique<SelectionOwner>(
        SelectionOwner::Offer{{{"UTF8_STRING", "never"}}, Manners::silentInPieces});
    ASSERT_TRUE(eventually([&] { return owner->sentPieces() == 1; }));
    owner.reset();
    EXPECT_TRUE(loop.runUntil([&] { return pasteboard->changeCount() > before; }));
    EXPECT_EQ(pasteboard->types(), Texts{});
    EXPECT_EQ(pasteboard->text(), std::nullopt);
}

TEST_F(X11PasteboardTest, hasTheLastOfManyCopies)
{
    SelectionOwner one("one");
    SelectionOwner other("other");
    for (int copies = 0; copies < 500; ++copies) {
        one.copyAgain();
        other.copyAgain();
    }
    const SelectionOwner last("the last");
    EXPECT_TRUE(loop.runUntil([&] { return pasteboard->text() == "the last"; }));
}

TEST_F(X11PasteboardTest, requestsNothingOfASecretButItsMark)
{
    copy({{"UTF8_STRING", "password"}, {"x-kde-passwordManagerHint", "secret"}});
    EXPECT_EQ(
        pasteboard->types(), (Texts{"public.utf8-plain-text", "org.nspasteboard.ConcealedType"}));
    EXPECT_EQ(pasteboard->text(), std::nullopt);
    EXPECT_EQ(owner->requested(), (Texts{"TARGETS", "x-kde-passwordManagerHint"}));
}

TEST_F(X11PasteboardTest, keepsWhatWasWrittenAfterACopyThatIsStillBeingRead)
{
    makePasteboard({.silence = std::chrono::hours(1), .owner = std::chrono::hours(1)});
    const SelectionOwner silent({{{"UTF8_STRING", "never"}}, Manners::silent});
    ASSERT_TRUE(eventually([&] { return !silent.requested().empty(); }));
    pasteboard->write(PasteboardContent::Text{"own"});
    EXPECT_EQ(read("UTF8_STRING"), "own");
    EXPECT_EQ(pasteboard->text(), "own");
    copy({{"UTF8_STRING", "text"}});
    EXPECT_EQ(pasteboard->text(), "text");
}

TEST_F(X11PasteboardTest, hasTheLastOfWritesAndCopiesInTurn)
{
    for (int turn = 0; turn < 100; ++turn) {
        const auto own = "own " + std::to_string(turn);
        const auto text = "copied " + std::to_string(turn);
        pasteboard->write(PasteboardContent::Text{own});
        ASSERT_TRUE(eventually([&] { return read("UTF8_STRING") == own; }));
        const SelectionOwner application(text);
        ASSERT_TRUE(loop.runUntil([&] { return pasteboard->text() == text; })) << turn;
    }
}

TEST_F(X11PasteboardTest, letsASubscriptionOutliveIt)
{
    auto subscription = pasteboard->observeChanges([] {});
    observed.reset();
    pasteboard.reset();
    subscription.reset();
    EXPECT_FALSE(subscription.isActive());
}

TEST_F(X11PasteboardTest, isEmptyWhenTheServerHasGone)
{
    desktop.endDisplayServer();
    pasteboard->write(PasteboardContent::Text{"own"});
    EXPECT_EQ(pasteboard->text(), "own");
    observed.reset();
    pasteboard.reset();
    makePasteboard({});
    EXPECT_EQ(pasteboard->types(), Texts{});
}

} // namespace
} // namespace brindlex
