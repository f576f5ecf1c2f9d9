#include "clipboard/ClipboardHistoryStoreFixture.h"

#include <algorithm>
#include <random>

namespace brindlex {
namespace {

struct ClipboardHistoryStoreChangesTest : ClipboardHistoryStoreTest { };

TEST_F(ClipboardHistoryStoreChangesTest, movesARepeatedCopyToTheHeadOfTheUnpinned)
{
    auto copied = textItem("copied twice", 1);
    copied.sourceBundleID = "org.example.First";
    start().add(copied);
    store->add(textItem("between", 2));
    store->add(pinned(textItem("pinned"), 0));
    clock.setNow(clipboardDay + 3);

    store->touch(copied.fingerprint);

    EXPECT_EQ(texts(), (Texts{"pinned", "copied twice", "between"}));
    copied.createdAt = clipboardDay + 3;
    EXPECT_EQ(*store->items().value()[1], copied);
}

TEST_F(ClipboardHistoryStoreChangesTest, leavesAPinnedItemInItsPlaceWhenCopiedAgain)
{
    start().add(pinned(textItem("pinned early"), 1));
    store->add(pinned(textItem("pinned late"), 2));
    clock.setNow(clipboardDay + 100);
    store->touch("text:pinned early");
    EXPECT_EQ(texts(), (Texts{"pinned late", "pinned early"}));
    EXPECT_EQ(store->items().value()[1]->createdAt, clipboardDay + 100);
}

TEST_F(ClipboardHistoryStoreChangesTest, touchesTheFirstOfEqualContents)
{
    auto first = textItem("same", 2);
    auto second = textItem("same", 1);
    start().add(second);
    store->add(first);
    clock.setNow(clipboardDay + 3);
    store->touch("text:same");
    first.createdAt = clipboardDay + 3;
    EXPECT_EQ(recordsOf(store->items().value()), (std::vector{first, second}));
}

TEST_F(ClipboardHistoryStoreChangesTest, enforcesNoLimitWhenAContentIsCopiedAgain)
{
    start().add(textItem("one", 1));
    store->add(textItem("two", 2));
    setLimit(1);
    store->touch("text:one");
    EXPECT_EQ(texts().size(), 2U);
}

TEST_F(ClipboardHistoryStoreChangesTest, touchesNothingByAnUnknownFingerprint)
{
    start().add(textItem("one"));
    save();
    store->touch("text:other");
    EXPECT_EQ(mainThread.timers(), 0U);
    EXPECT_EQ(texts(), Texts{"one"});
}

TEST_F(ClipboardHistoryStoreChangesTest, pinsAndReleases)
{
    start().add(textItem("one", 1));
    store->add(textItem("two", 2));
    const auto one = store->items().value()[1]->id;
    clock.setNow(clipboardDay + 5);

    store->setPinned(one, true);
    EXPECT_EQ(texts(), (Texts{"one", "two"}));
    EXPECT_EQ(store->items().value()[0]->pinnedAt, clipboardDay + 5);

    clock.setNow(clipboardDay + 6);
    store->setPinned(one, true);
    EXPECT_EQ(store->items().value()[0]->pinnedAt, clipboardDay + 6);

    store->setPinned(one, false);
    EXPECT_EQ(texts(), (Texts{"two", "one"}));
    EXPECT_EQ(store->items().value()[1]->pinnedAt, std::nullopt);
}

TEST_F(ClipboardHistoryStoreChangesTest, deletesAnItemWithItsBlob)
{
    start();
    const auto picture = imageItem(1);
    ASSERT_TRUE(store->writeBlob(*picture.imageBlobName, "bytes"));
    store->add(picture);
    store->add(textItem("text", 2));
    EXPECT_EQ(contentOf(blobs / *picture.imageBlobName), "bytes");

    store->deleteItem(picture.id);

    EXPECT_EQ(texts(), Texts{"text"});
    EXPECT_EQ(namesIn(blobs), Texts{});
}

TEST_F(ClipboardHistoryStoreChangesTest, doesNothingForAnUnknownItemToDelete)
{
    start().add(textItem("one"));
    save();
    store->deleteItem(Uuid::random());
    EXPECT_EQ(texts(), Texts{"one"});
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(ClipboardHistoryStoreChangesTest, clearsPinnedItemsToo)
{
    start();
    const auto picture = pinned(imageItem());
    ASSERT_TRUE(store->writeBlob(*picture.imageBlobName, "bytes"));
    store->add(picture);
    store->add(textItem("text"));

    store->clear();
    save();

    EXPECT_EQ(texts(), Texts{});
    EXPECT_EQ(namesIn(blobs), Texts{});
    EXPECT_EQ(contentOf(index), "[]");
}

TEST_F(ClipboardHistoryStoreChangesTest, meansTheFirstOfItemsWithOneIdentifier)
{
    const auto first = textItem("first", 2);
    auto second = textItem("second", 1);
    second.id = first.id;
    start().add(second);
    store->add(first);
    store->deleteItem(first.id);
    EXPECT_EQ(texts(), Texts{"second"});
    store->setPinned(first.id, true);
    EXPECT_TRUE(store->items().value()[0]->pinnedAt);
}

/// The store in its plainest form: every change sorts everything.
struct PlainStore {
    void add(const ClipboardItem& item, std::size_t limit)
    {
        items.insert(items.begin(), shared(item));
        sortForDisplay(items);
        items.resize(std::min(items.size(), limit));
    }
    template <typename Condition, typename Change>
    void change(Condition condition, Change change)
    {
        for (auto& item : items)
            if (condition(*item)) {
                auto changed = *item;
                change(changed);
                item = shared(changed);
                break;
            }
        sortForDisplay(items);
    }
    ClipboardItems items;
};

TEST_F(ClipboardHistoryStoreChangesTest, isAlwaysWhatItsPlainestFormIs)
{
    std::mt19937 random(6);
    setLimit(20);
    start();
    PlainStore plain;
    for (int step = 0; step < 3000; ++step) {
        const auto item = randomItem(random);
        const auto id = item.id;
        const auto hasId = [&](const ClipboardItem& one) { return one.id == id; };
        clock.setNow(clipboardDay + static_cast<Seconds>(random() % 4) * 0.5);
        const bool pins = random() % 2 == 0;
        switch (random() % 4) {
        case 0:
        case 1:
            store->add(item);
            plain.add(item, 20);
            break;
        case 2:
            store->setPinned(id, pins);
            plain.change(hasId, [&](ClipboardItem& one) {
                one.pinnedAt = pins ? std::optional(clock.now()) : std::nullopt;
            });
            break;
        default:
            if (plain.items.empty())
                break;
            const auto fingerprint = plain.items[random() % plain.items.size()]->fingerprint;
            store->touch(fingerprint);
            plain.change([&](const ClipboardItem& one) { return one.fingerprint == fingerprint; },
                [&](ClipboardItem& one) { one.createdAt = clock.now(); });
        }
        ASSERT_EQ(recordsOf(store->items().value()), recordsOf(plain.items)) << "step " << step;
    }
}

} // namespace
} // namespace brindlex
