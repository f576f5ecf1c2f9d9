#include "clipboard/ClipboardIndex.h"

#include "support/basics/TemporaryFolder.h"
#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

std::string problemOf(const Result<std::string, std::string>& text)
{
    return text ? "none" : text.error();
}

TEST(ClipboardIndex, readsWhatItWrote)
{
    std::mt19937 random(8);
    auto items = randomItems(random, 50);
    items.push_back(shared(imageItem()));
    items.push_back(shared(fileItem({"/a", "/b"})));
    const auto read = clipboardItemsOf(*clipboardIndexText(items));
    ASSERT_TRUE(read);
    EXPECT_EQ(recordsOf(*read), recordsOf(items));
}

TEST(ClipboardIndex, isAnEmptyListWithoutItems)
{
    EXPECT_EQ(*clipboardIndexText({}), "[]");
    EXPECT_TRUE(clipboardItemsOf("[]")->empty());
}

TEST(ClipboardIndex, holdsNothingThatItCouldNotRead)
{
    const auto good = shared(textItem("good"));
    for (const auto noNumber : {std::numeric_limits<double>::infinity(),
             -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        auto item = textItem("text");
        item.createdAt = Date{noNumber};
        EXPECT_EQ(problemOf(clipboardIndexText({good, shared(item)})),
            "1.createdAt is not a finite number");
        item = textItem("text");
        item.pinnedAt = Date{noNumber};
        EXPECT_EQ(
            problemOf(clipboardIndexText({shared(item)})), "0.pinnedAt is not a finite number");
    }
    auto picture = imageItem();
    picture.imageBlobName = "../picture.png";
    EXPECT_EQ(problemOf(clipboardIndexText({shared(picture)})),
        "0.imageBlobName is not the name of a file");
}

TEST(ClipboardIndex, isNothingWithoutAFile)
{
    const TemporaryFolder folder;
    const auto read = readClipboardIndex(folder.path() / "missing/index.json");
    ASSERT_TRUE(read);
    EXPECT_FALSE(*read);
}

TEST(ClipboardIndex, makesItsFolder)
{
    const TemporaryFolder folder;
    const auto file = folder.path() / "a/b/index.json";
    EXPECT_TRUE(writeClipboardIndex(file, {shared(textItem("one"))}));
    const auto read = readClipboardIndex(file);
    ASSERT_TRUE(read && *read);
    EXPECT_EQ(textsOf(**read), std::vector<std::string>{"one"});
}

TEST(ClipboardIndex, isNeverLargerThanWhatItReads)
{
    const TemporaryFolder folder;
    const auto file = folder.path() / "index.json";
    const ClipboardItems items{shared(textItem("one"))};
    const auto size = clipboardIndexText(items)->size();
    EXPECT_EQ(writeClipboardIndex(file, items, size - 1),
        fail("would be larger than " + std::to_string(size - 1) + " bytes"));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(writeClipboardIndex(file, items, size));
    EXPECT_EQ(std::filesystem::file_size(file), size);
}

} // namespace
} // namespace brindlex
