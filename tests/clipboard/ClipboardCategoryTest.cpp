#include "clipboard/ClipboardCategory.h"

#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Categories = std::vector<ClipboardCategory>;

/// The categories that have the item.
Categories categoriesOf(const ClipboardItem& item)
{
    Categories categories;
    for (const auto category : allCases<ClipboardCategory>())
        if (isInCategory(item, category))
            categories.push_back(category);
    return categories;
}

constexpr auto all = ClipboardCategory::all;

TEST(ClipboardCategory, areFourInTheirOrder)
{
    std::vector<std::string> names;
    for (const auto category : allCases<ClipboardCategory>())
        names.emplace_back(storedValue(category));
    EXPECT_EQ(names, (std::vector<std::string>{"all", "text", "image", "file"}));
}

TEST(ClipboardCategory, haveTextAndPictures)
{
    EXPECT_EQ(categoriesOf(textItem("a.png")), (Categories{all, ClipboardCategory::text}));
    EXPECT_EQ(categoriesOf(imageItem()), (Categories{all, ClipboardCategory::image}));
}

TEST(ClipboardCategory, haveFilesThatAreAllPicturesAsPictures)
{
    for (const char* extension : {"apng", "avif", "bmp", "gif", "heic", "heif", "ico", "jpeg",
             "jpg", "jp2", "png", "psd", "raw", "svg", "tif", "tiff", "webp", "PNG", "JpEg"}) {
        const auto path = "/home/user/a." + std::string(extension);
        EXPECT_EQ(categoriesOf(fileItem({path})), (Categories{all, ClipboardCategory::image}))
            << path;
        EXPECT_EQ(
            categoriesOf(fileItem({path, "/b.x.gif"})), (Categories{all, ClipboardCategory::image}))
            << path;
    }
}

TEST(ClipboardCategory, haveAllOtherFilesAsFiles)
{
    for (const char* path : {"/b.txt", "/png", "/a.", "/.png", "/a.png.gz", "/a.pngx", "/a.jpe",
             "/folder.png/file", "", "/", "/a.webm", ".."})
        EXPECT_EQ(categoriesOf(fileItem({path})), (Categories{all, ClipboardCategory::file}))
            << path;
    EXPECT_EQ(
        categoriesOf(fileItem({"a.png", "b.txt"})), (Categories{all, ClipboardCategory::file}));
    EXPECT_EQ(
        categoriesOf(fileItem({"b.txt", "a.png"})), (Categories{all, ClipboardCategory::file}));
}

TEST(ClipboardCategory, takeTheNameOfAFolderWithoutItsSlash)
{
    EXPECT_TRUE(isImagePath("/a/pictures.png/"));
    EXPECT_TRUE(isImagePath("/a/pictures.png//"));
    EXPECT_FALSE(isImagePath("//"));
}

TEST(ClipboardCategory, haveFilesWithoutAPathAmongAllOnly)
{
    auto item = fileItem({});
    EXPECT_EQ(categoriesOf(item), Categories{all});
    item.fileURLStrings.reset();
    EXPECT_EQ(categoriesOf(item), Categories{all});
}

TEST(ClipboardCategory, goByTheKindAndNotByWhatElseAnItemHas)
{
    auto item = textItem("text");
    item.fileURLStrings = {"/a.png"};
    EXPECT_EQ(categoriesOf(item), (Categories{all, ClipboardCategory::text}));
}

} // namespace
} // namespace brindlex
