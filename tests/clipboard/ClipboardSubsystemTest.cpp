#include "clipboard/ClipboardSubsystem.h"

#include "clipboard/ClipboardSession.h"

namespace brindlex {
namespace {

struct ClipboardSubsystemTest : testing::Test, ClipboardSession { };

TEST_F(ClipboardSubsystemTest, hasOneOfEachPart)
{
    EXPECT_EQ(&subsystem.store(), &subsystem.store());
    EXPECT_EQ(&subsystem.monitor(), &subsystem.monitor());
    EXPECT_EQ(&subsystem.quickLookPreviewer(), &subsystem.quickLookPreviewer());
    EXPECT_EQ(&subsystem.pickerPanelController(), &subsystem.pickerPanelController());
    EXPECT_EQ(&subsystem.manager(), &subsystem.manager());
}

TEST_F(ClipboardSubsystemTest, asksNothingOfTheComputerBeforeItIsStarted)
{
    EXPECT_EQ(mainThread.timers(), 0U);
    EXPECT_EQ(input.tapsMade(), 0U);
    EXPECT_EQ(panel.takeCalls(), Texts{});
    EXPECT_EQ(pasteboard.reads(), 0);
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardSubsystemTest, keepsTheHistoryInTheFolderOfTheUser)
{
    EXPECT_EQ(
        subsystem.store().directory(), userFolders.dataHome() / "Brindlex" / "ClipboardHistory");
}

TEST_F(ClipboardSubsystemTest, goesFromACopyToAPaste)
{
    start();
    settle();
    bringToFront(7);
    pasteboard.copyText("copied first");
    settle();
    pasteboard.copyText("copied second");
    settle();

    EXPECT_TRUE(takesHotkey());
    EXPECT_EQ(visible(), (Texts{"copied second", "copied first"}));
    picker().handleKey({virtualKey::downArrow, KeyPhase::press, {}});
    picker().handleKey({virtualKey::returnKey, KeyPhase::press, {}});
    settle();

    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(pasteboard.text(), "copied first");
    EXPECT_EQ(timesPasted(), 1);
    // What was pasted has become what was copied last.
    EXPECT_EQ(textsOf(subsystem.store().items().value()), (Texts{"copied first", "copied second"}));
    queue.drain();
    EXPECT_EQ(log.lines(), Texts{startedLine});
}

TEST_F(ClipboardSubsystemTest, searchesInEachShowing)
{
    start({"second", "first"});
    for (int showing = 0; showing < 2; ++showing) {
        manager.showPicker();
        picker().setQuery("sec");
        EXPECT_EQ(visible(), Texts{"second"});
        picker().cancel();
    }
}

} // namespace
} // namespace brindlex
