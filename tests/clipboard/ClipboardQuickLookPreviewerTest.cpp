#include "clipboard/ClipboardQuickLookPreviewer.h"

#include "clipboard/ClipboardPickerFixture.h"

namespace brindlex {
namespace {

struct ClipboardQuickLookPreviewerTest : ClipboardPickerFixture {
    /// A file that exists.
    ClipboardItem existing(const std::string& name)
    {
        const auto file = temporary.path() / name;
        write(file, "content");
        return fileItem({file.string()});
    }

    int closed = 0;
    Subscription closeObserver = previewer.observeDidClose([this] { ++closed; });
};

TEST_F(ClipboardQuickLookPreviewerTest, showsAnItemUntilSpaceIsReleased)
{
    const auto picture = copyPicture();
    previewer.open(picture);
    EXPECT_TRUE(previewer.isPreviewing());
    EXPECT_EQ(previewing.shown, Files{blobs / *picture.imageBlobName});
    EXPECT_EQ(closed, 0);

    EXPECT_TRUE(previewer.releaseKey(virtualKey::space));
    EXPECT_FALSE(previewer.isPreviewing());
    EXPECT_EQ(previewing.shown, Files{});
    EXPECT_EQ(closed, 1);
}

TEST_F(ClipboardQuickLookPreviewerTest, leavesTheReleaseOfOtherKeysAlone)
{
    EXPECT_FALSE(previewer.releaseKey(virtualKey::space));
    previewer.open(copyPicture());
    for (const auto keyCode : {virtualKey::option, virtualKey::a, virtualKey::escape})
        EXPECT_FALSE(previewer.releaseKey(keyCode));
    EXPECT_TRUE(previewer.isPreviewing());
    EXPECT_TRUE(previewer.releaseKey(virtualKey::space));
    EXPECT_FALSE(previewer.releaseKey(virtualKey::space));
    EXPECT_EQ(closed, 1);
}

TEST_F(ClipboardQuickLookPreviewerTest, opensNothingOfWhatHasNoFile)
{
    previewer.open(textItem("text"));
    previewer.open(imageItem());
    previewer.open(fileItem({"/nowhere/at/all"}));
    EXPECT_FALSE(previewer.isPreviewing());
    EXPECT_EQ(previewing.timesShown, 0);
    previewer.close();
    EXPECT_EQ(closed, 0);
}

TEST_F(ClipboardQuickLookPreviewerTest, staysAsItIsWhileTheKeyRepeats)
{
    const auto item = existing("a.txt");
    previewer.open(item);
    previewer.open(item);
    previewer.open(textItem("text"));
    EXPECT_EQ(previewing.timesShown, 1);
    EXPECT_TRUE(previewer.isPreviewing());
}

TEST_F(ClipboardQuickLookPreviewerTest, goesOnWithAnotherItem)
{
    previewer.open(existing("a.txt"));
    previewer.open(existing("b.txt"));
    EXPECT_EQ(previewing.shown, Files{temporary.path() / "b.txt"});
    EXPECT_EQ(closed, 0);
    previewer.close();
    previewer.close();
    EXPECT_EQ(closed, 1);
}

TEST_F(ClipboardQuickLookPreviewerTest, hasClosedWhenItNotifies)
{
    previewer.open(existing("a.txt"));
    bool wasPreviewing = true;
    Files shown{"something"};
    const auto observer = previewer.observeDidClose([&] {
        wasPreviewing = previewer.isPreviewing();
        shown = previewing.shown;
    });
    previewer.close();
    EXPECT_FALSE(wasPreviewing);
    EXPECT_EQ(shown, Files{});
}

TEST_F(ClipboardQuickLookPreviewerTest, opensTheSameItemAnewOnceItHasClosed)
{
    const auto item = existing("a.txt");
    previewer.open(item);
    previewer.close();
    previewer.open(item);
    EXPECT_TRUE(previewer.isPreviewing());
    EXPECT_EQ(previewing.timesShown, 2);
}

} // namespace
} // namespace brindlex
