#include "clipboard/ClipboardPreviews.h"

#include "clipboard/ClipboardPickerFixture.h"

namespace brindlex {
namespace {

namespace fs = std::filesystem;

struct ClipboardPreviewsTest : ClipboardPickerFixture {
    /// Makes a file of the name and returns its path.
    std::string make(const std::string& name)
    {
        const auto file = temporary.path() / name;
        write(file, "content");
        return file.string();
    }

    std::optional<fs::path> firstImage(const ClipboardItem& item)
    {
        return firstPreviewableImage(item, history, [this](const fs::path& file) {
            askedOfType.push_back(file.filename().string());
            return file.extension() == ".picture";
        });
    }

    Texts askedOfType;
};

TEST_F(ClipboardPreviewsTest, areNoneOfAText)
{
    const auto text = textItem(make("a.png"));
    EXPECT_EQ(previewFiles(text, history), Files{});
    EXPECT_EQ(firstImage(text), std::nullopt);
}

TEST_F(ClipboardPreviewsTest, areTheBlobOfAPictureIfItExists)
{
    const auto picture = copyPicture();
    const auto blob = blobs / *picture.imageBlobName;
    EXPECT_EQ(previewFiles(picture, history), Files{blob});
    EXPECT_EQ(firstImage(picture), blob);
    fs::remove(blob);
    EXPECT_EQ(previewFiles(picture, history), Files{});
    EXPECT_EQ(firstImage(picture), std::nullopt);
}

TEST_F(ClipboardPreviewsTest, takeABlobForAPictureWhateverItsNameIs)
{
    auto picture = imageItem();
    picture.imageBlobName = "blob";
    ASSERT_TRUE(history.writeBlob("blob", "PNG"));
    EXPECT_EQ(firstImage(picture), blobs / "blob");
    EXPECT_EQ(askedOfType, Texts{});
}

TEST_F(ClipboardPreviewsTest, areNoneOfAPictureWithoutABlobOfItsOwn)
{
    auto picture = imageItem();
    picture.imageBlobName.reset();
    EXPECT_EQ(previewFiles(picture, history), Files{});
    picture.imageBlobName = "../index.json";
    history.scheduleSave();
    save();
    ASSERT_TRUE(fs::exists(index));
    EXPECT_EQ(previewFiles(picture, history), Files{});
}

TEST_F(ClipboardPreviewsTest, areTheFilesThatExistInTheirOrder)
{
    const auto second = make("b.txt");
    const auto first = make("a b.png");
    const auto folder = temporary.path().string();
    const auto missing = (temporary.path() / "missing.png").string();
    EXPECT_EQ(previewFiles(fileItem({second, missing, folder, first, ""}), history),
        (Files{second, folder, first}));
    EXPECT_EQ(previewFiles(fileItem({missing}), history), Files{});
    auto bare = fileItem({});
    EXPECT_EQ(previewFiles(bare, history), Files{});
    bare.fileURLStrings.reset();
    EXPECT_EQ(previewFiles(bare, history), Files{});
}

TEST_F(ClipboardPreviewsTest, passOverADanglingLink)
{
    const auto link = temporary.path() / "link.png";
    fs::create_symlink(temporary.path() / "missing.png", link);
    EXPECT_EQ(previewFiles(fileItem({link.string()}), history), Files{});
}

TEST_F(ClipboardPreviewsTest, haveTheFirstThatExistsAndIsAPictureByItsName)
{
    const auto missing = (temporary.path() / "missing.png").string();
    const auto text = make("a.txt");
    const auto photo = make("b.JPEG");
    EXPECT_EQ(firstImage(fileItem({missing, text, photo, make("c.png")})), fs::path(photo));
    EXPECT_EQ(askedOfType, Texts{"a.txt"});
}

TEST_F(ClipboardPreviewsTest, haveTheFirstThatIsAPictureByItsType)
{
    const auto other = make("a.picture");
    EXPECT_EQ(firstImage(fileItem({make("README"), other})), fs::path(other));
    EXPECT_EQ(firstImage(fileItem({make("README")})), std::nullopt);
}

} // namespace
} // namespace brindlex
