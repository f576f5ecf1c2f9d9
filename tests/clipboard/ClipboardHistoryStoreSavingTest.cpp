#include "clipboard/ClipboardHistoryStoreFixture.h"

#include "support/basics/FileSizeLimit.h"
#include "support/basics/OrdinaryUser.h"

#include <limits>
#include <sys/stat.h>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

fs::perms permissionsOf(const fs::path& file) { return fs::status(file).permissions(); }

struct ClipboardHistoryStoreSavingTest : ClipboardHistoryStoreTest { };

TEST_F(ClipboardHistoryStoreSavingTest, writesTwoHundredMillisecondsAfterAChange)
{
    start().add(textItem("one"));
    mainThread.advance(0.199);
    EXPECT_EQ(queue.waiting(), 0U);
    mainThread.advance(0.001);
    EXPECT_EQ(queue.waiting(), 1U);
    EXPECT_FALSE(fs::exists(index));
    queue.drain();
    EXPECT_EQ(savedTexts(), Texts{"one"});
}

TEST_F(ClipboardHistoryStoreSavingTest, writesABurstOnceAfterItsLastChange)
{
    start().add(textItem("one", 1));
    mainThread.advance(0.15);
    store->add(textItem("two", 2));
    mainThread.advance(0.199);
    EXPECT_EQ(queue.waiting(), 0U);
    mainThread.advance(0.001);
    EXPECT_EQ(queue.waiting(), 1U);
    mainThread.advance(10);
    EXPECT_EQ(queue.waiting(), 1U);
    queue.drain();
    EXPECT_EQ(savedTexts(), (Texts{"two", "one"}));
}

TEST_F(ClipboardHistoryStoreSavingTest, writesOnceForEachKindOfChange)
{
    const auto item = textItem("one");
    start();
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"add", [&] { store->add(item); }},
        {"touch", [&] { store->touch(item.fingerprint); }},
        {"pin", [&] { store->setPinned(item.id, true); }},
        {"release", [&] { store->setPinned(item.id, false); }},
        {"pin an unknown item", [&] { store->setPinned(Uuid::random(), true); }},
        {"delete", [&] { store->deleteItem(item.id); }},
        {"clear", [&] { store->clear(); }},
        {"ask for it", [&] { store->scheduleSave(); }},
    };
    for (const auto& [name, change] : changes) {
        change();
        mainThread.advance(1);
        EXPECT_EQ(queue.waiting(), 1U) << name;
        queue.drain();
    }
}

TEST_F(ClipboardHistoryStoreSavingTest, writesOneListWithoutSpaces)
{
    auto item = pinned(fileItem({"/tmp/a"}), 1);
    item.id = *Uuid::fromText("0e7a5c1e-3b52-4f64-9d1c-8a2b7d9f4e10");
    auto other = textItem("hello");
    other.id = item.id;
    start().add(item);
    store->add(other);
    save();
    EXPECT_EQ(contentOf(index),
        R"([{"id":"0E7A5C1E-3B52-4F64-9D1C-8A2B7D9F4E10","kind":"file","createdAt":800000000.0,)"
        R"("fingerprint":"file:/tmp/a\n","fileURLStrings":["/tmp/a"],"pinnedAt":800000001.0},)"
        R"({"id":"0E7A5C1E-3B52-4F64-9D1C-8A2B7D9F4E10","kind":"text","createdAt":800000000.0,)"
        R"("fingerprint":"text:hello","text":"hello"}])");
}

TEST_F(ClipboardHistoryStoreSavingTest, keepsEverythingForTheUserAlone)
{
    start();
    const auto picture = imageItem();
    ASSERT_TRUE(store->writeBlob(*picture.imageBlobName, "bytes"));
    store->add(picture);
    save();
    for (const auto& folder : {directory, blobs, directory.parent_path()})
        EXPECT_EQ(permissionsOf(folder), fs::perms(0700)) << folder;
    EXPECT_EQ(permissionsOf(index), fs::perms(0600));
    EXPECT_EQ(permissionsOf(blobs / *picture.imageBlobName), fs::perms(0600));
    EXPECT_EQ(namesIn(directory), (Texts{"blobs", "index.json"}));
}

TEST_F(ClipboardHistoryStoreSavingTest, losesWhatIsNotWrittenWhenTheProgramEnds)
{
    start().add(textItem("one"));
    save();
    store->add(textItem("two", 1));
    mainThread.advance(0.199);
    store.reset();
    mainThread.advance(10);
    queue.drain();
    EXPECT_EQ(savedTexts(), Texts{"one"});
}

TEST_F(ClipboardHistoryStoreSavingTest, writesWhatWasHandedOverWhenTheStoreHasGone)
{
    start().add(textItem("one"));
    mainThread.advance(0.2);
    store.reset();
    queue.drain();
    EXPECT_EQ(savedTexts(), Texts{"one"});
}

TEST_F(ClipboardHistoryStoreSavingTest, endsWithTheNewestListHoweverLateTheDiskIs)
{
    start().add(textItem("one", 1));
    mainThread.advance(0.2);
    store->add(textItem("two", 2));
    mainThread.advance(0.2);
    EXPECT_EQ(queue.waiting(), 2U);
    queue.runNext();
    store->add(textItem("three", 3));
    mainThread.advance(0.2);
    queue.drain();
    EXPECT_EQ(savedTexts(), (Texts{"three", "two", "one"}));
}

TEST_F(ClipboardHistoryStoreSavingTest, makesItsFoldersAnewWhenTheyWereRemoved)
{
    start().add(textItem("one"));
    save();
    fs::remove_all(temporary.path() / "Brindlex");

    const auto picture = imageItem(1);
    EXPECT_TRUE(store->writeBlob(*picture.imageBlobName, "bytes"));
    store->add(picture);
    save();

    EXPECT_EQ(savedTexts(), (Texts{picture.fingerprint, "one"}));
    EXPECT_EQ(contentOf(blobs / *picture.imageBlobName), "bytes");
    EXPECT_EQ(permissionsOf(directory), fs::perms(0700));
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardHistoryStoreSavingTest, triesAgainWithTheNextChangeAfterAFailure)
{
    start().add(textItem("one", 1));
    save();
    fs::remove_all(directory);
    write(directory, "a file in the place of the folder");

    store->add(textItem("two", 2));
    save();
    EXPECT_EQ(log.takeLines(),
        Texts{"WARN [clipboard] ClipboardHistoryStore: save failed: " + index.string()
            + ": Not a directory"});
    EXPECT_EQ(texts(), (Texts{"two", "one"}));
    mainThread.advance(10);
    EXPECT_EQ(queue.waiting(), 0U);

    fs::remove(directory);
    store->add(textItem("three", 3));
    save();
    EXPECT_EQ(savedTexts(), (Texts{"three", "two", "one"}));
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardHistoryStoreSavingTest, keepsTheOldIndexWhenTheDiskIsFull)
{
    start().add(textItem("one", 1));
    save();
    store->add(textItem(std::string(100'000, 'x'), 2));
    {
        const FileSizeLimit full(50'000);
        save();
    }
    EXPECT_EQ(savedTexts(), Texts{"one"});
    EXPECT_EQ(log.takeLines(),
        Texts{"WARN [clipboard] ClipboardHistoryStore: save failed: " + index.string()
            + ": File too large"});
    EXPECT_EQ(namesIn(directory), (Texts{"blobs", "index.json"}));
}

TEST_F(ClipboardHistoryStoreSavingTest, leavesNoPartOfABlobWhenTheDiskIsFull)
{
    start();
    const FileSizeLimit full(50'000);
    const auto written = store->writeBlob("picture.png", std::string(100'000, 'x'));
    EXPECT_EQ(written, fail(FileProblem{blobs / "picture.png", "File too large"}));
    EXPECT_EQ(namesIn(blobs), Texts{});
}

TEST_F(ClipboardHistoryStoreSavingTest, saysThatTheFolderMayNotBeWrittenTo)
{
    const OrdinaryUser user(temporary.path());
    start();
    fs::permissions(directory, fs::perms(0500));
    store->add(textItem("one"));
    save();
    fs::permissions(directory, fs::perms(0700));
    EXPECT_EQ(log.takeLines(),
        Texts{"WARN [clipboard] ClipboardHistoryStore: save failed: " + index.string()
            + ": Permission denied"});
    EXPECT_EQ(texts(), Texts{"one"});
    store->scheduleSave();
    save();
    EXPECT_EQ(savedTexts(), Texts{"one"});
}

TEST_F(ClipboardHistoryStoreSavingTest, doesNotWriteADateThatJsonCannotHold)
{
    start().add(textItem("one"));
    save();
    auto item = textItem("two");
    item.createdAt = Date{std::numeric_limits<double>::infinity()};
    store->add(item);
    save();
    EXPECT_EQ(savedTexts(), Texts{"one"});
    EXPECT_EQ(log.lines(),
        Texts{"WARN [clipboard] ClipboardHistoryStore: save failed: 0.createdAt is not a finite "
              "number"});
}

TEST_F(ClipboardHistoryStoreSavingTest, writesBytesThatAreNoTextAsReplacements)
{
    start().add(textItem("a\xFFz"));
    save();
    EXPECT_EQ(savedTexts(), Texts{"a\uFFFDz"});
    EXPECT_EQ(log.lines(), Texts{});
}

} // namespace
} // namespace brindlex
