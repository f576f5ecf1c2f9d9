#include "clipboard/ClipboardHistoryMeter.h"

#include "clipboard/ClipboardHistoryStoreFixture.h"

namespace brindlex {
namespace {

struct ClipboardHistoryMeterTest : ClipboardHistoryStoreTest {
    ClipboardHistoryMeter& meterOf(ClipboardHistoryStore& history)
    {
        return meter.emplace(history, mainThread, queue);
    }
    ClipboardHistoryMeter& startMeter()
    {
        auto& started = meterOf(start());
        started.start();
        finishCounts();
        return started;
    }
    void addBlob(std::size_t size)
    {
        const auto item = imageItem();
        EXPECT_TRUE(store->writeBlob(*item.imageBlobName, std::string(size, 'x')));
        store->add(item);
    }
    void finishCounts()
    {
        queue.drain();
        mainThread.runUntilIdle();
    }
    /// Lets so much time pass, with all that is to be done beside the main thread.
    void pass(Seconds time)
    {
        mainThread.advance(time);
        finishCounts();
    }
    std::uintmax_t bytes() const { return meter->measure().value().bytes.value(); }
    std::size_t items() const { return meter->measure().value().items; }

    std::optional<ClipboardHistoryMeter> meter;
};

TEST_F(ClipboardHistoryMeterTest, knowsTheNumberOfItemsAtOnce)
{
    start().add(textItem("one"));
    EXPECT_EQ(meterOf(*store).measure().value(), (ClipboardHistoryMeasure{1, {}}));
    store->add(textItem("two"));
    EXPECT_EQ(meter->measure().value(), (ClipboardHistoryMeasure{2, {}}));
    store->clear();
    EXPECT_EQ(meter->measure().value(), (ClipboardHistoryMeasure{0, {}}));
}

TEST_F(ClipboardHistoryMeterTest, countsBytesOnTheQueueWhenItStarts)
{
    start();
    addBlob(5'000);
    save();
    meterOf(*store).start();
    EXPECT_EQ(queue.waiting(), 1U);
    queue.drain();
    EXPECT_EQ(meter->measure().value().bytes, std::nullopt) << "only the main thread may change it";
    mainThread.runUntilIdle();
    EXPECT_EQ(bytes(), 5'000 + std::filesystem::file_size(index));
}

TEST_F(ClipboardHistoryMeterTest, countsNothingBeforeItStartsAndOnceItHasStopped)
{
    meterOf(start());
    addBlob(100);
    pass(5);
    EXPECT_EQ(meter->measure().value().bytes, std::nullopt);

    meter->start();
    finishCounts();
    const auto before = bytes();
    addBlob(100);
    meter->stop();
    pass(5);
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(items(), 2U);
    EXPECT_EQ(mainThread.timers(), 0U);

    meter->start();
    finishCounts();
    EXPECT_EQ(bytes(), 200 + std::filesystem::file_size(index));
}

TEST_F(ClipboardHistoryMeterTest, countsAChangeASecondLaterWithTheIndexThatWasWrittenForIt)
{
    startMeter();
    store->add(textItem("text"));
    pass(0.999);
    EXPECT_EQ(bytes(), 0U);
    pass(0.001);
    EXPECT_GT(bytes(), 0U);
    EXPECT_EQ(bytes(), std::filesystem::file_size(index));
}

TEST_F(ClipboardHistoryMeterTest, countsManyChangesOnceASecondAndAtLastTheLastOfThem)
{
    startMeter();
    int counts = 0;
    const auto counting = meter->measure().stream().withoutFirst().subscribe(
        [&, last = bytes()](const ClipboardHistoryMeasure& measure) mutable {
            counts += measure.bytes != last;
            last = *measure.bytes;
        });
    for (int change = 0; change < 50; ++change) {
        addBlob(100);
        pass(0.1);
    }
    EXPECT_GE(counts, 4);
    EXPECT_LE(counts, 5);
    pass(2);
    EXPECT_EQ(bytes(), 50 * 100 + std::filesystem::file_size(index));
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(ClipboardHistoryMeterTest, countsAgainForAChangeShortlyBeforeACount)
{
    startMeter();
    store->add(textItem("one"));
    pass(0.9);
    store->add(textItem("two"));
    pass(0.1);
    const auto early = bytes();
    pass(1);
    EXPECT_GT(bytes(), early);
    EXPECT_EQ(bytes(), std::filesystem::file_size(index));
}

TEST_F(ClipboardHistoryMeterTest, hasNoTwoCountsOnTheirWay)
{
    meterOf(start()).start();
    for (int change = 0; change < 5; ++change) {
        addBlob(100);
        mainThread.advance(1);
    }
    meter->stop();
    meter->start();
    // The writing of the index, which stays one piece for each change, and the first count.
    EXPECT_EQ(queue.waiting(), 1U + 5U);
    pass(1);
    pass(1);
    EXPECT_EQ(bytes(), 500 + std::filesystem::file_size(index));
}

TEST_F(ClipboardHistoryMeterTest, doesNotKnowTheBytesOfAFolderThatCannotBeRead)
{
    startMeter();
    std::filesystem::remove(blobs);
    write(blobs, "no folder");
    store->add(textItem("text"));
    pass(1);
    EXPECT_EQ(meter->measure().value(), (ClipboardHistoryMeasure{1, {}}));
}

TEST_F(ClipboardHistoryMeterTest, hasNoBytesWithoutAFolder)
{
    startMeter();
    addBlob(100);
    pass(1);
    EXPECT_GT(bytes(), 100U);
    std::filesystem::remove_all(directory);
    meter->stop();
    meter->start();
    finishCounts();
    EXPECT_EQ(bytes(), 0U);
}

TEST_F(ClipboardHistoryMeterTest, mayGoWhileACountIsOnItsWay)
{
    meterOf(start()).start();
    meter.reset();
    finishCounts();
    EXPECT_EQ(mainThread.timers(), 0U);
    EXPECT_EQ(queue.waiting(), 0U);
}

} // namespace
} // namespace brindlex
