#include "clipboard/ClipboardHistoryStoreFixture.h"

#include "foundation/JsonCoding.h"

#include <algorithm>
#include <random>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

struct ClipboardHistoryStoreLoadingTest : ClipboardHistoryStoreTest {
    void writeIndex(const std::string& content)
    {
        fs::create_directories(blobs);
        write(index, content);
    }

    /// What is logged when the index cannot be read for the reason.
    static Texts unreadable(const std::string& reason)
    {
        return {"ERROR [clipboard] ClipboardHistoryStore: index.json unreadable, backing up: "
            + reason};
    }
};

/// An entry of an index, with one key changed.
std::string entry(const std::string& key = "", const std::string& value = "")
{
    auto document = toJson(textItem("one"));
    if (!key.empty())
        document[key] = *parseJson(value);
    return jsonText(document);
}

TEST_F(ClipboardHistoryStoreLoadingTest, readsWhatAnotherRunWrote)
{
    start();
    const auto picture = imageItem(1);
    ASSERT_TRUE(store->writeBlob(*picture.imageBlobName, "bytes"));
    auto text = pinned(textItem("text", 2), 3);
    text.sourceBundleID = "org.example.Editor";
    const auto files = fileItem({"/home/user/ä", "/b"}, 4);
    for (const auto& item : {picture, text, files})
        store->add(item);
    save();
    const auto written = contentOf(index);

    start();

    EXPECT_EQ(recordsOf(store->items().value()), (std::vector{text, files, picture}));
    EXPECT_EQ(contentOf(*store->blobURL(picture)), "bytes");
    save();
    EXPECT_EQ(contentOf(index), written);
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardHistoryStoreLoadingTest, bringsWhatItReadsIntoOrder)
{
    std::mt19937 random(7);
    const auto items = randomItems(random, 300);
    writeIndex(*clipboardIndexText(items));
    auto sorted = items;
    sortForDisplay(sorted);
    start();
    EXPECT_EQ(recordsOf(store->items().value()), recordsOf(sorted));
}

TEST_F(ClipboardHistoryStoreLoadingTest, readsAsManyItemsAsThereAre)
{
    setLimit(1);
    writeIndex("[" + entry() + "," + entry() + "]");
    start();
    EXPECT_EQ(texts().size(), 2U);
}

TEST_F(ClipboardHistoryStoreLoadingTest, readsAnEmptyList)
{
    writeIndex(" [ ] ");
    start();
    EXPECT_EQ(texts(), Texts{});
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardHistoryStoreLoadingTest, setsAnIndexWithAMalformedEntryAsideAsAWhole)
{
    const auto content = "[" + entry() + "," + entry("kind", "\"sound\"") + "]";
    writeIndex(content);
    write(blobs / "one.png", "bytes");
    write(blobs / "two.png", "bytes");

    start();

    EXPECT_EQ(texts(), Texts{});
    EXPECT_EQ(contentOf(aside), content);
    EXPECT_FALSE(fs::exists(index));
    EXPECT_EQ(namesIn(blobs), Texts{});
    EXPECT_EQ(log.lines(), unreadable("1.kind is not a value of the enumeration"));
}

TEST_F(ClipboardHistoryStoreLoadingTest, setsAsideWhatHasAnotherForm)
{
    const std::string list = "[" + entry() + "]";
    const std::pair<std::string, std::string> damaged[] = {
        {"", "is not JSON"},
        {"\xFF", "is not JSON"},
        {std::string("[]\0", 3), "is not JSON"},
        {list.substr(0, list.size() / 2), "is not JSON"},
        {list.substr(0, list.size() - 1), "is not JSON"},
        {list + ",", "is not JSON"},
        {"{}", "is not a list"},
        {"null", "is not a list"},
        {entry(), "is not a list"},
        {"[null]", "0 is not an object"},
        {"[[]]", "0 is not an object"},
        {"[" + entry("id", "\"x\"") + "]", "0.id is not a UUID"},
        {"[" + entry("createdAt", "\"2026-01-01\"") + "]", "0.createdAt is not a date"},
        {"[" + entry("text", "1") + "]", "0.text is not text"},
        {"[" + entry("fileURLStrings", "[\"/a\",1]") + "]", "0.fileURLStrings.1 is not text"},
        {"[" + entry("pinnedAt", "true") + "]", "0.pinnedAt is not a date"},
        {"[{\"id\":1e999}]", "is not JSON"},
        {std::string(100'000, '['), "is nested too deeply"},
        {"[" + std::string(600, '[') + std::string(600, ']') + "]", "is nested too deeply"},
    };
    for (const auto& [content, reason] : damaged) {
        writeIndex(content);
        start();
        EXPECT_EQ(texts(), Texts{}) << content;
        EXPECT_EQ(contentOf(aside), content);
        EXPECT_EQ(log.takeLines(), unreadable(reason)) << content;
    }
}

TEST_F(ClipboardHistoryStoreLoadingTest, setsAsideAnIndexWhoseBlobsAreElsewhere)
{
    write(temporary.path() / "precious", "content");
    for (const char* name :
        {"", ".", "..", "/", "../../../precious", "a/b.png", "/etc/passwd", "a\\u0000b", "./x"}) {
        writeIndex("[" + entry("imageBlobName", "\"" + std::string(name) + "\"") + "]");
        start();
        EXPECT_EQ(texts(), Texts{}) << name;
        EXPECT_EQ(log.takeLines(), unreadable("0.imageBlobName is not the name of a file")) << name;
    }
    EXPECT_EQ(contentOf(temporary.path() / "precious"), "content");
}

TEST_F(ClipboardHistoryStoreLoadingTest, setsAsideAnIndexThatIsTooLarge)
{
    writeIndex("[]");
    fs::resize_file(index, largestClipboardIndex + 1);
    start();
    EXPECT_EQ(log.lines(), unreadable(index.string() + ": Is larger than 536870912 bytes"));
    EXPECT_EQ(fs::file_size(aside), largestClipboardIndex + 1);
}

TEST_F(ClipboardHistoryStoreLoadingTest, setsAsideWhatIsNoFile)
{
    fs::create_directories(index / "inside");
    start();
    EXPECT_EQ(log.lines(), unreadable(index.string() + ": Is not a regular file"));
    EXPECT_TRUE(fs::is_directory(aside / "inside"));
    store->add(textItem("one"));
    save();
    EXPECT_EQ(savedTexts(), Texts{"one"});
}

TEST_F(ClipboardHistoryStoreLoadingTest, keepsOnlyTheLastIndexThatWasSetAside)
{
    writeIndex("first");
    start();
    writeIndex("second");
    start();
    EXPECT_EQ(contentOf(aside), "second");
    fs::remove(aside);
    fs::create_directories(aside / "a folder in its place");
    writeIndex("third");
    start();
    EXPECT_EQ(contentOf(aside), "third");
    EXPECT_EQ(namesIn(directory), (Texts{"blobs", "index.json.corrupt"}));
}

TEST_F(ClipboardHistoryStoreLoadingTest, beginsAnewBesideAnIndexThatWasSetAside)
{
    writeIndex("damaged");
    start().add(textItem("one"));
    save();
    EXPECT_EQ(savedTexts(), Texts{"one"});
    start();
    EXPECT_EQ(texts(), Texts{"one"});
    EXPECT_EQ(contentOf(aside), "damaged");
}

TEST_F(ClipboardHistoryStoreLoadingTest, keepsItemsWithOneIdentifier)
{
    const auto twice = entry();
    writeIndex("[" + twice + "," + twice + "]");
    start();
    EXPECT_EQ(texts(), (Texts{"one", "one"}));
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardHistoryStoreLoadingTest, removesBlobsThatNoItemNames)
{
    const auto picture = imageItem();
    writeIndex(*clipboardIndexText({shared(picture)}));
    write(blobs / *picture.imageBlobName, "bytes");
    write(blobs / "orphan.png", "bytes");
    write(blobs / ".hidden", "bytes");
    write(temporary.path() / "elsewhere", "content");
    fs::create_symlink(temporary.path() / "elsewhere", blobs / "link.png");
    fs::create_directories(blobs / "folder/of somebody");

    start();

    EXPECT_EQ(namesIn(blobs), (Texts{*picture.imageBlobName, "folder"}));
    EXPECT_EQ(contentOf(temporary.path() / "elsewhere"), "content");
}

TEST_F(ClipboardHistoryStoreLoadingTest, worksWithoutAFolderUntilThereCanBeOne)
{
    write(temporary.path() / "Brindlex", "a file in the place of a folder");
    start();
    EXPECT_EQ(log.takeLines(), unreadable(index.string() + ": Not a directory"));
    store->add(textItem("one"));
    EXPECT_EQ(texts(), Texts{"one"});
    fs::remove(temporary.path() / "Brindlex");
    save();
    EXPECT_EQ(savedTexts(), Texts{"one"});
}

TEST_F(ClipboardHistoryStoreLoadingTest, readsMoreItemsThanAnybodyCopies)
{
    ClipboardItems items;
    for (int number = 0; number < 2'000; ++number)
        items.push_back(shared(textItem(std::to_string(number), -number)));
    writeIndex(*clipboardIndexText(items));
    setLimit(2'000);

    start().add(textItem("new", 1));

    EXPECT_EQ(store->items().value().size(), 2'000U);
    EXPECT_EQ(store->items().value()[0]->text, "new");
    EXPECT_EQ(store->items().value()[1'999]->text, "1998");
}

} // namespace
} // namespace brindlex
