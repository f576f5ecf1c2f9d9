#include "platform/linux/preferences/PreferenceFileSyncSteps.h"

namespace brindlex {
namespace {

using Timer = PreferenceFileSync::Timer;
using Finding = PreferenceFile::Finding;
using Keys = std::set<std::string>;

/// Writes the change of `a`.
PreferenceFileSync writing()
{
    PreferenceFileSync sync;
    sync.change("a");
    EXPECT_EQ(text(sync.fire(Timer::write)), "write a");
    return sync;
}

/// Waits for a second after the change of `a` could not be written.
PreferenceFileSync waiting()
{
    auto sync = writing();
    EXPECT_EQ(text(sync.endWrite(false)), "start retry 1");
    return sync;
}

PreferenceFileSync looking()
{
    PreferenceFileSync sync;
    EXPECT_EQ(text(sync.touch()), "look waits");
    return sync;
}

PreferenceFileSync settling()
{
    auto sync = looking();
    EXPECT_EQ(text(sync.endLook(Finding::unsettled)), "start settle 1");
    return sync;
}

TEST(PreferenceFileSync, doesNothingAsLongAsNothingHappens)
{
    PreferenceFileSync sync;

    EXPECT_EQ(sync.pendingKeys(), Keys{});
    EXPECT_EQ(text(sync.flush()), "");
    for (const auto timer : {Timer::write, Timer::retry, Timer::settle})
        EXPECT_EQ(text(sync.fire(timer)), "") << text(timer);
    for (const bool isWritten : {true, false})
        EXPECT_EQ(text(sync.endWrite(isWritten)), "");
    for (const auto found : {Finding::unchanged, Finding::changed, Finding::unsettled,
             Finding::setAside, Finding::unreadable})
        EXPECT_EQ(text(sync.endLook(found)), "");
}

TEST(PreferenceFileSync, writesTheChangesOfThirtyMillisecondsTogether)
{
    PreferenceFileSync sync;

    EXPECT_EQ(text(sync.change("b")), "start write 0.03");
    EXPECT_EQ(text(sync.change("a")), "");
    EXPECT_EQ(text(sync.change("b")), "");
    EXPECT_EQ(sync.pendingKeys(), (Keys{"a", "b"}));
    EXPECT_EQ(text(sync.fire(Timer::write)), "write a b");
    EXPECT_EQ(sync.pendingKeys(), (Keys{"a", "b"}));
    EXPECT_EQ(text(sync.endWrite(true)), "");
    EXPECT_EQ(sync.pendingKeys(), Keys{});
}

TEST(PreferenceFileSync, writesAtOnceWhenFlushed)
{
    PreferenceFileSync sync;
    sync.change("a");

    EXPECT_EQ(text(sync.flush()), "stop write, write a");
    EXPECT_EQ(text(sync.flush()), "") << "It is under way.";
    EXPECT_EQ(text(sync.fire(Timer::write)), "") << "It was stopped.";
    EXPECT_EQ(text(sync.endWrite(true)), "");
    EXPECT_EQ(text(sync.flush()), "") << "There is nothing more.";
}

TEST(PreferenceFileSync, writesAChangeDuringAWriteAfterIt)
{
    for (const std::string key : {"a", "b"}) {
        auto sync = writing();

        EXPECT_EQ(text(sync.change(key)), "start write 0.03");
        EXPECT_EQ(text(sync.endWrite(true)), "") << "The timer is running.";
        EXPECT_EQ(sync.pendingKeys(), Keys{key});
        EXPECT_EQ(text(sync.fire(Timer::write)), "write " + key);
    }
}

TEST(PreferenceFileSync, writesAChangeDuringALongWriteThirtyMillisecondsAfterIt)
{
    auto sync = writing();
    sync.change("b");

    EXPECT_EQ(text(sync.fire(Timer::write)), "") << "One write at a time.";
    EXPECT_EQ(sync.pendingKeys(), (Keys{"a", "b"}));
    EXPECT_EQ(text(sync.endWrite(true)), "start write 0.03");
    EXPECT_EQ(text(sync.fire(Timer::write)), "write b");
}

TEST(PreferenceFileSync, isNotWrittenTwiceForTwoEndsOfAWrite)
{
    auto sync = writing();
    sync.change("b");
    EXPECT_EQ(text(sync.endWrite(true)), "");

    EXPECT_EQ(text(sync.endWrite(false)), "");

    EXPECT_EQ(sync.pendingKeys(), Keys{"b"});
    EXPECT_EQ(text(sync.fire(Timer::write)), "write b");
}

TEST(PreferenceFileSync, repeatsAFailedWriteEachTimeAfterTwiceAsLongUpToAMinute)
{
    auto sync = writing();

    for (const std::string delay : {"1", "2", "4", "8", "16", "32", "60", "60"}) {
        EXPECT_EQ(text(sync.endWrite(false)), "start retry " + delay);
        EXPECT_EQ(sync.pendingKeys(), Keys{"a"});
        EXPECT_EQ(text(sync.fire(Timer::retry)), "write a");
    }
    EXPECT_EQ(text(sync.endWrite(true)), "");
    EXPECT_EQ(sync.pendingKeys(), Keys{});
}

TEST(PreferenceFileSync, beginsWithASecondAgainAfterASuccess)
{
    auto sync = waiting();
    sync.fire(Timer::retry);
    EXPECT_EQ(text(sync.endWrite(false)), "start retry 2");
    sync.fire(Timer::retry);
    sync.endWrite(true);
    sync.change("b");
    sync.fire(Timer::write);

    EXPECT_EQ(text(sync.endWrite(false)), "start retry 1");
}

TEST(PreferenceFileSync, repeatsAFailedWriteWithTheNextChange)
{
    auto sync = waiting();

    EXPECT_EQ(text(sync.change("b")), "start write 0.03");
    EXPECT_EQ(text(sync.fire(Timer::write)), "stop retry, write a b");
    EXPECT_EQ(text(sync.fire(Timer::retry)), "") << "It was stopped.";
}

TEST(PreferenceFileSync, repeatsAFailedWriteWhenFlushed)
{
    auto sync = waiting();

    EXPECT_EQ(text(sync.flush()), "stop retry, write a");
}

TEST(PreferenceFileSync, writesOnceWhenTheRetryComesBeforeTheNextChangeIsDue)
{
    auto sync = waiting();
    sync.change("b");

    EXPECT_EQ(text(sync.fire(Timer::retry)), "stop write, write a b");
}

TEST(PreferenceFileSync, keepsWhatFailedAndWhatWasChangedMeanwhile)
{
    auto sync = writing();
    sync.change("b");

    EXPECT_EQ(text(sync.endWrite(false)), "start retry 1");

    EXPECT_EQ(sync.pendingKeys(), (Keys{"a", "b"}));
    EXPECT_EQ(text(sync.fire(Timer::write)), "stop retry, write a b");
}

TEST(PreferenceFileSync, looksOnceMoreHoweverOftenTheFileIsTouchedMeanwhile)
{
    auto sync = looking();

    EXPECT_EQ(text(sync.touch()), "");
    EXPECT_EQ(text(sync.touch()), "");
    EXPECT_EQ(text(sync.endLook(Finding::changed)), "look waits");
    EXPECT_EQ(text(sync.endLook(Finding::unchanged)), "");
}

TEST(PreferenceFileSync, hasNothingToDoAboutAFileThatIsClear)
{
    for (const auto found : {Finding::unchanged, Finding::changed, Finding::unreadable}) {
        auto sync = looking();

        EXPECT_EQ(text(sync.endLook(found)), "");
        EXPECT_EQ(text(sync.touch()), "look waits");
    }
}

TEST(PreferenceFileSync, actsOnAFileThatIsUnsettledForASecond)
{
    auto sync = settling();

    EXPECT_EQ(text(sync.fire(Timer::settle)), "look acts");
    EXPECT_EQ(text(sync.endLook(Finding::changed)), "");
}

TEST(PreferenceFileSync, waitsAgainForAFileThatIsTouchedAndStillUnsettled)
{
    auto sync = settling();

    EXPECT_EQ(text(sync.touch()), "look waits");
    EXPECT_EQ(text(sync.endLook(Finding::unsettled)), "stop settle, start settle 1");
}

TEST(PreferenceFileSync, stopsWaitingForAFileThatHasSettled)
{
    for (const auto found : {Finding::unchanged, Finding::changed, Finding::unreadable}) {
        auto sync = settling();
        sync.touch();

        EXPECT_EQ(text(sync.endLook(found)), "stop settle");
        EXPECT_EQ(text(sync.fire(Timer::settle)), "") << "It was stopped.";
    }
}

TEST(PreferenceFileSync, leavesItToTheNextLookWhenTheTimeIsOverDuringOne)
{
    auto sync = settling();
    sync.touch();

    EXPECT_EQ(text(sync.fire(Timer::settle)), "");
    EXPECT_EQ(text(sync.endLook(Finding::unsettled)), "start settle 1, look waits");
}

TEST(PreferenceFileSync, writesAFileThatWasSetAsideAnew)
{
    auto sync = settling();
    sync.fire(Timer::settle);

    EXPECT_EQ(text(sync.endLook(Finding::setAside)), "start write 0.03");
    EXPECT_EQ(sync.pendingKeys(), Keys{}) << "What others write now is taken over.";
    EXPECT_EQ(text(sync.fire(Timer::write)), "write");
    EXPECT_EQ(text(sync.endWrite(true)), "");
    EXPECT_EQ(text(sync.flush()), "") << "It is written.";
}

TEST(PreferenceFileSync, writesAFileThatWasSetAsideWithTheRetryWhenItFailsAtFirst)
{
    auto sync = settling();
    sync.fire(Timer::settle);
    sync.endLook(Finding::setAside);
    sync.fire(Timer::write);

    EXPECT_EQ(text(sync.endWrite(false)), "start retry 1");
    EXPECT_EQ(text(sync.fire(Timer::retry)), "write");
    EXPECT_EQ(text(sync.endWrite(true)), "");
    EXPECT_EQ(text(sync.flush()), "") << "It is written.";
}

TEST(PreferenceFileSync, writesAFileThatWasSetAsideWithTheChangesThatAreDue)
{
    auto sync = looking();
    sync.change("a");

    EXPECT_EQ(text(sync.endLook(Finding::setAside)), "") << "The timer is running.";
    EXPECT_EQ(text(sync.fire(Timer::write)), "write a");
}

TEST(PreferenceFileSync, looksAgainAtAFileThatWasTouchedWhileItWasSetAside)
{
    auto sync = looking();
    sync.touch();

    EXPECT_EQ(text(sync.endLook(Finding::setAside)), "start write 0.03, look waits");
}

TEST(PreferenceFileSync, looksWhileItWrites)
{
    auto sync = writing();

    EXPECT_EQ(text(sync.touch()), "look waits");
    EXPECT_EQ(text(sync.endWrite(true)), "");
    EXPECT_EQ(text(sync.endLook(Finding::unchanged)), "");
}

TEST(PreferenceFileSync, ignoresTheSecondEndOfALook)
{
    auto sync = settling();

    EXPECT_EQ(text(sync.endLook(Finding::setAside)), "");

    EXPECT_EQ(text(sync.fire(Timer::settle)), "look acts");
}

} // namespace
} // namespace brindlex
