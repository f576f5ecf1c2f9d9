#include "clipboard/ClipboardManager.h"

#include "clipboard/ClipboardSession.h"

namespace brindlex {
namespace {

struct ClipboardManagerPasteTest : testing::Test, ClipboardSession { };

TEST_F(ClipboardManagerPasteTest, showsThePickerAnewWhenTheHotkeyIsPressedAgain)
{
    start({"second", "first"});
    bringToFront(7);
    ASSERT_TRUE(takesHotkey());
    settle();
    picker().setQuery("sec");
    ASSERT_TRUE(takesHotkey());
    EXPECT_EQ(visible(), (Texts{"first", "second"}));
    EXPECT_TRUE(panel.isVisible());
    picker().commit();
    EXPECT_EQ(activating.activated, Processes{ProcessIdentity{7}});
}

TEST_F(ClipboardManagerPasteTest, pastesIntoTheApplicationThatWasInFront)
{
    start({"second", "first"});
    bringToFront(7);
    manager.showPicker();
    // A desktop that hands the front over with the keys.
    applications.emptyFront();
    picker().commitItem(1);
    EXPECT_EQ(pasteboard.offer(),
        (SimulatedPasteboard::Offer{.types = {"public.utf8-plain-text"}, .text = "second"}));
    EXPECT_EQ(activating.activated, Processes{ProcessIdentity{7}});
    EXPECT_FALSE(panel.isVisible());
    mainThread.advance(0.0799);
    EXPECT_EQ(timesPasted(), 0);
    mainThread.advance(0.0001);
    EXPECT_EQ(timesPasted(), 1);
    settle();
    EXPECT_EQ(timesPasted(), 1);
}

TEST_F(ClipboardManagerPasteTest, typesNothingWhereTheUserDoesNotWantThat)
{
    set(&Keys::clipboardAutoPaste, false);
    start({"text"});
    bringToFront(7);
    choose(0);
    settle();
    EXPECT_EQ(pasteboard.text(), "text");
    EXPECT_EQ(activating.activated, Processes{ProcessIdentity{7}});
    EXPECT_EQ(timesPasted(), 0);
}

TEST_F(ClipboardManagerPasteTest, pastesWithoutAnApplicationInFront)
{
    start({"text"});
    choose(0);
    settle();
    EXPECT_EQ(pasteboard.text(), "text");
    EXPECT_EQ(activating.activated, Processes{});
    EXPECT_EQ(timesPasted(), 1);
}

TEST_F(ClipboardManagerPasteTest, readsWhetherToPasteAtEachSelection)
{
    start({"text"});
    manager.showPicker();
    set(&Keys::clipboardAutoPaste, false);
    picker().commit();
    settle();
    EXPECT_EQ(timesPasted(), 0);
}

TEST_F(ClipboardManagerPasteTest, remembersTheFrontAnewAtEachShowing)
{
    start({"text"});
    bringToFront(7);
    choose(0);
    applications.emptyFront();
    choose(0);
    bringToFront(8);
    choose(0);
    EXPECT_EQ(activating.activated, (Processes{ProcessIdentity{7}, ProcessIdentity{8}}));
}

TEST_F(ClipboardManagerPasteTest, pastesThoughItIsStoppedOrShownMeanwhile)
{
    start({"text"});
    choose(0);
    manager.stop();
    settle();
    EXPECT_EQ(timesPasted(), 1);
    choose(0);
    manager.showPicker();
    settle();
    EXPECT_EQ(timesPasted(), 2);
}

TEST_F(ClipboardManagerPasteTest, pastesEachOfTwoSelectionsThatFollowFast)
{
    start({"second", "first"});
    choose(0);
    mainThread.advance(0.04);
    choose(1);
    mainThread.advance(0.04);
    EXPECT_EQ(timesPasted(), 1);
    mainThread.advance(0.04);
    EXPECT_EQ(timesPasted(), 2);
    EXPECT_EQ(pasteboard.text(), "second");
}

TEST_F(ClipboardManagerPasteTest, leavesNothingOnThePasteboardOfAPictureThatHasGone)
{
    start();
    auto picture = imageItem();
    subsystem.store().add(picture);
    pasteboard.copyText("something else");
    choose(0);
    EXPECT_EQ(pasteboard.offer(), SimulatedPasteboard::Offer{});
    settle();
    EXPECT_EQ(timesPasted(), 1);
}

TEST_F(ClipboardManagerPasteTest, pastesNothingOfAnItemThatIsDeletedInThePicker)
{
    start({"text"});
    manager.showPicker();
    picker().deleteSelection();
    picker().commit();
    settle();
    EXPECT_EQ(pasteboard.changeCount(), 0);
    EXPECT_EQ(timesPasted(), 0);
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(ClipboardManagerPasteTest, pastesNothingWhenThePickerIsDismissed)
{
    start({"text"});
    bringToFront(7);
    manager.showPicker();
    picker().cancel();
    settle();
    EXPECT_EQ(pasteboard.changeCount(), 0);
    EXPECT_EQ(activating.activated, Processes{});
    EXPECT_EQ(timesPasted(), 0);
}

TEST_F(ClipboardManagerPasteTest, countsItsTimesByTheClockThatNobodySets)
{
    start({"text"});
    clock.setNow(clipboardDay - 1e6);
    choose(0);
    mainThread.advance(0.08);
    EXPECT_EQ(timesPasted(), 1);
    clock.setNow(clipboardDay + 1e6);
    set(&Keys::clipboardHistoryEnabled, false);
    clock.setNow(clipboardDay - 1e6);
    mainThread.advance(0.25);
    EXPECT_FALSE(takesHotkey());
}

} // namespace
} // namespace brindlex
