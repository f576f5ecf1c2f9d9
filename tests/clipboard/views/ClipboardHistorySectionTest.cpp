#include "clipboard/views/ClipboardHistorySection.h"

#include "clipboard/views/ClipboardSettingsScreenFixture.h"

#include <fstream>

namespace brindlex {
namespace {

using ClipboardHistorySectionTest = ClipboardSettingsScreenFixture;

TEST_F(ClipboardHistorySectionTest, opensTheFolder)
{
    show("clipboard");
    EXPECT_TRUE(says("~/.local/share/Brindlex/ClipboardHistory"));
    control<QPushButton>("Open Folder")->click();
    EXPECT_EQ(gallery->openedFolders,
        std::vector<std::filesystem::path>{gallery->clipboardStore.directory()});
}

TEST_F(ClipboardHistorySectionTest, saysHowMuchIsKept)
{
    show("clipboard");
    EXPECT_TRUE(says("31 · 1.5 MiB"));
    gallery->clipboardStore.add(textItem("another"));
    EXPECT_TRUE(says("32 · 1.5 MiB"));
    gallery->clipboardStore.clear();
    EXPECT_TRUE(says("No items"));
}

TEST_F(ClipboardHistorySectionTest, saysOnlyHowManyItemsThereAreInAFolderThatCannotBeRead)
{
    show("clipboard");
    std::filesystem::remove_all(gallery->clipboardStore.blobsDirectory());
    std::ofstream(gallery->clipboardStore.blobsDirectory()) << "no folder";
    gallery->clipboardStore.add(textItem("another"));
    gallery->computer.mainThread.advance(1);
    gallery->runQueue();
    EXPECT_TRUE(says("32"));
}

TEST_F(ClipboardHistorySectionTest, hasTheHistoryMeasuredOnlyWhileItIsToBeSeen)
{
    show("clipboard");
    gallery->computer.mainThread.advance(1);
    window->hide();
    gallery->runQueue();
    gallery->clipboardStore.add(textItem("another"));
    // The writing of the index.
    EXPECT_EQ(gallery->computer.mainThread.timers(), 1U);
    window->show();
    EXPECT_EQ(gallery->queue.waiting(), 1U);
    window.reset();
    gallery->computer.mainThread.advance(5);
    EXPECT_EQ(gallery->queue.waiting(), 2U);
    EXPECT_EQ(gallery->computer.mainThread.timers(), 0U);
}

} // namespace
} // namespace brindlex
