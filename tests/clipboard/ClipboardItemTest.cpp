#include "clipboard/ClipboardItem.h"

#include "foundation/JsonCoding.h"
#include "support/basics/JsonReading.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace brindlex {
namespace {

const std::string idText = "0E7A5C1E-3B52-4F64-9D1C-8A2B7D9F4E10";

ClipboardItem plainItem()
{
    return {
        .id = *Uuid::fromText(idText),
        .kind = ClipboardItemKind::text,
        .createdAt = Date{800'000'000.25},
        .fingerprint = "text:hello",
    };
}

ClipboardItem fullItem()
{
    auto item = plainItem();
    item.kind = ClipboardItemKind::file;
    item.sourceBundleID = "org.example.Editor";
    item.text = "hello";
    item.imageBlobName = "picture.png";
    item.fileURLStrings = {"/home/user/a b.txt", "/home/user/c.txt"};
    item.pinnedAt = Date{800'000'001};
    return item;
}

const std::string fullText = R"({"id":")" + idText
    + R"(","kind":"file","createdAt":800000000.25,"sourceBundleID":"org.example.Editor",)"
      R"("fingerprint":"text:hello","text":"hello","imageBlobName":"picture.png",)"
      R"("fileURLStrings":["/home/user/a b.txt","/home/user/c.txt"],"pinnedAt":800000001.0})";

TEST(ClipboardItem, isWrittenWithTheNamesOfItsFields)
{
    EXPECT_EQ(jsonText(toJson(fullItem())), fullText);
}

TEST(ClipboardItem, leavesOutWhatIsAbsent)
{
    EXPECT_EQ(jsonText(toJson(plainItem())),
        R"({"id":")" + idText
            + R"(","kind":"text","createdAt":800000000.25,"fingerprint":"text:hello"})");
}

TEST(ClipboardItem, readsWhatItWrote)
{
    EXPECT_EQ(readText<ClipboardItem>(fullText), fullItem());
    EXPECT_EQ(readText<ClipboardItem>(jsonText(toJson(plainItem()))), plainItem());
}

TEST(ClipboardItem, readsNullForWhatIsAbsent)
{
    auto document = *parseJson(jsonText(toJson(plainItem())));
    for (const char* key :
        {"sourceBundleID", "text", "imageBlobName", "fileURLStrings", "pinnedAt"})
        document[key] = nullptr;
    EXPECT_EQ(fromJson<ClipboardItem>(document), plainItem());
}

TEST(ClipboardItem, isUnreadableWithoutAKeyThatMustBeThere)
{
    const auto document = *parseJson(fullText);
    for (const char* key : {"id", "kind", "createdAt", "fingerprint"}) {
        auto missing = document;
        missing.erase(key);
        EXPECT_FALSE(fromJson<ClipboardItem>(missing)) << key;
        auto null = document;
        null[key] = nullptr;
        EXPECT_FALSE(fromJson<ClipboardItem>(null)) << key;
    }
}

TEST(ClipboardItem, isUnreadableWithAValueOfAnotherType)
{
    const auto document = *parseJson(fullText);
    for (const char* key : {"id", "kind", "createdAt", "sourceBundleID", "fingerprint", "text",
             "imageBlobName", "fileURLStrings", "pinnedAt"})
        for (const char* value : {"true", "{}", "[1]"}) {
            auto other = document;
            other[key] = *parseJson(value);
            EXPECT_FALSE(fromJson<ClipboardItem>(other)) << key << " " << value;
        }
}

TEST(ClipboardItem, takesWhatTextCanHold)
{
    auto item = plainItem();
    item.text = std::string("a\0\"\\\n\t\u2028🎛 ", 14);
    EXPECT_EQ(readText<ClipboardItem>(jsonText(toJson(item))), item);
}

TEST(ClipboardItem, hasItsPlaceInASet)
{
    auto touched = plainItem();
    touched.createdAt = Date{900'000'000};
    auto other = plainItem();
    other.id = Uuid::random();
    const std::unordered_set<ClipboardItem> items{plainItem(), touched, other, plainItem()};
    EXPECT_EQ(items.size(), 3U);
    EXPECT_EQ(std::hash<ClipboardItem>{}(touched), std::hash<ClipboardItem>{}(plainItem()));
}

TEST(ClipboardItemKind, isStoredAsText)
{
    EXPECT_EQ(allCases<ClipboardItemKind>(),
        (std::array{ClipboardItemKind::text, ClipboardItemKind::image, ClipboardItemKind::file}));
    EXPECT_STREQ(storedValue(ClipboardItemKind::text), "text");
    EXPECT_STREQ(storedValue(ClipboardItemKind::image), "image");
    EXPECT_STREQ(storedValue(ClipboardItemKind::file), "file");
}

} // namespace
} // namespace brindlex
