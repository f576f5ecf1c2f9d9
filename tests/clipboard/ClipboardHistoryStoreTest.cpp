#include "clipboard/ClipboardHistoryStoreFixture.h"

#include "platform/simulated/SimulatedUserFolders.h"

namespace brindlex {
namespace {

namespace fs = std::filesystem;

TEST_F(ClipboardHistoryStoreTest, standsBelowTheFolderOfTheUsersData)
{
    EXPECT_EQ(clipboardHistoryFolder(SimulatedUserFolders("/home/user")),
        "/home/user/.local/share/Brindlex/ClipboardHistory");
    start();
    EXPECT_EQ(store->directory(), directory);
    EXPECT_EQ(store->blobsDirectory(), directory / "blobs");
    EXPECT_EQ(store->indexURL(), directory / "index.json");
}

TEST_F(ClipboardHistoryStoreTest, beginsEmptyAndWritesNothing)
{
    start();
    save();
    EXPECT_EQ(texts(), Texts{});
    EXPECT_EQ(namesIn(directory), Texts{"blobs"});
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardHistoryStoreTest, putsTheLastCopyFirst)
{
    start().add(textItem("one", 1));
    store->add(textItem("two", 2));
    store->add(textItem("three", 3));
    EXPECT_EQ(texts(), (Texts{"three", "two", "one"}));
}

TEST_F(ClipboardHistoryStoreTest, putsACopyBehindOneOfALaterDate)
{
    start().add(textItem("of a clock that was ahead", 1'000'000));
    store->add(textItem("now"));
    EXPECT_EQ(texts(), (Texts{"of a clock that was ahead", "now"}));
}

TEST_F(ClipboardHistoryStoreTest, ordersByIdentifierWhatWasCopiedAtOneTime)
{
    auto low = textItem("low");
    low.id = *Uuid::fromText("1FFFFFFF-0000-4000-8000-000000000000");
    auto high = textItem("high");
    high.id = *Uuid::fromText("A0000000-0000-4000-8000-000000000000");
    start().add(low);
    store->add(high);
    EXPECT_EQ(texts(), (Texts{"low", "high"}));
}

TEST_F(ClipboardHistoryStoreTest, keepsTwoHundredItemsByDefault)
{
    start();
    for (int number = 0; number <= 200; ++number)
        store->add(textItem(std::to_string(number), number));
    EXPECT_EQ(store->items().value().size(), 200U);
    EXPECT_EQ(texts().front(), "200");
    EXPECT_EQ(texts().back(), "1");
}

TEST_F(ClipboardHistoryStoreTest, keepsPinnedItemsAndTheNewestWithinTheLimit)
{
    setLimit(3);
    start().add(pinned(textItem("P1", 0), 1));
    store->add(pinned(textItem("P2", 1), 2));
    store->add(textItem("third", 2));
    store->add(textItem("fourth", 3));
    EXPECT_EQ(texts(), (Texts{"P2", "P1", "fourth"}));
}

TEST_F(ClipboardHistoryStoreTest, evictsThePinnedFirstWhenTheyAloneAreTooMany)
{
    setLimit(2);
    start();
    auto oldest = pinned(imageItem(0), 1);
    ASSERT_TRUE(store->writeBlob(*oldest.imageBlobName, "bytes"));
    store->add(oldest);
    store->add(pinned(textItem("P2"), 2));
    store->add(pinned(textItem("P3"), 3));
    store->add(textItem("unpinned", 100));
    EXPECT_EQ(texts(), (Texts{"P3", "P2"}));
    EXPECT_EQ(namesIn(blobs), Texts{});
}

TEST_F(ClipboardHistoryStoreTest, evictsAllThatASmallerLimitLeavesOut)
{
    start();
    for (int number = 0; number < 10; ++number)
        store->add(textItem(std::to_string(number), number));
    setLimit(2);
    EXPECT_EQ(texts().size(), 10U);
    store->add(textItem("new", 10));
    EXPECT_EQ(texts(), (Texts{"new", "9"}));
}

TEST_F(ClipboardHistoryStoreTest, keepsOneItemAtMostWithALimitOfNothing)
{
    for (const std::int64_t limit : {0, -1, -200}) {
        setLimit(limit);
        start().add(textItem("one", 1));
        EXPECT_EQ(texts(), Texts{"one"}) << limit;
        store->add(textItem("two", 2));
        EXPECT_EQ(texts(), Texts{}) << limit;
        fs::remove_all(directory);
    }
}

TEST_F(ClipboardHistoryStoreTest, removesTheBlobsOfEvictedItems)
{
    setLimit(1);
    start();
    const auto old = imageItem(0);
    const auto recent = imageItem(1);
    ASSERT_TRUE(store->writeBlob(*old.imageBlobName, "old"));
    ASSERT_TRUE(store->writeBlob(*recent.imageBlobName, "recent"));
    store->add(old);
    store->add(recent);
    EXPECT_EQ(namesIn(blobs), Texts{*recent.imageBlobName});
}

TEST_F(ClipboardHistoryStoreTest, keepsAnItemWhoseBlobHasGone)
{
    const auto picture = imageItem();
    start().add(picture);
    EXPECT_EQ(store->blobURL(picture), blobs / *picture.imageBlobName);
    EXPECT_EQ(store->items().value().size(), 1U);
    store->deleteItem(picture.id);
    EXPECT_EQ(store->items().value().size(), 0U);
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardHistoryStoreTest, hasNoBlobOfWhatIsNoPicture)
{
    EXPECT_EQ(start().blobURL(textItem("text")), std::nullopt);
}

TEST_F(ClipboardHistoryStoreTest, hasNoBlobOutsideItsFolder)
{
    write(temporary.path() / "precious", "content");
    auto item = imageItem();
    item.imageBlobName = "../../../precious";
    start().add(item);
    EXPECT_EQ(store->blobURL(item), std::nullopt);
    EXPECT_FALSE(store->writeBlob("../../../precious", "other"));
    store->deleteItem(item.id);
    EXPECT_EQ(contentOf(temporary.path() / "precious"), "content");
}

TEST_F(ClipboardHistoryStoreTest, knowsWhatItContains)
{
    start().add(textItem("one"));
    EXPECT_TRUE(store->contains("text:one"));
    EXPECT_FALSE(store->contains("text:on"));
    EXPECT_FALSE(store->contains("one"));
}

TEST_F(ClipboardHistoryStoreTest, publishesEachChangeAsAWholeList)
{
    std::vector<Texts> seen;
    const auto subscription = start().items().subscribe(
        [&](const ClipboardItems& items) { seen.push_back(textsOf(items)); });
    store->add(textItem("one", 1));
    store->add(textItem("two", 2));
    clock.setNow(clipboardDay + 3);
    store->touch("text:one");
    store->setPinned(store->items().value()[1]->id, true);
    store->setPinned(Uuid::random(), true);
    store->deleteItem(store->items().value()[0]->id);
    store->clear();
    EXPECT_EQ(seen,
        (std::vector<Texts>{
            {}, {"one"}, {"two", "one"}, {"one", "two"}, {"two", "one"}, {"one"}, {}}));
}

TEST_F(ClipboardHistoryStoreTest, mayBeChangedByWhoSeesAChange)
{
    const auto subscription = start().items().subscribe([&](const ClipboardItems& items) {
        if (items.size() == 2)
            store->deleteItem(items.back()->id);
    });
    store->add(textItem("one", 1));
    store->add(textItem("two", 2));
    EXPECT_EQ(texts(), Texts{"two"});
    save();
    EXPECT_EQ(savedTexts(), Texts{"two"});
}

} // namespace
} // namespace brindlex
