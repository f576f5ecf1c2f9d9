#include "clipboard/ClipboardPickerPanelController.h"

#include "clipboard/ClipboardPickerPanelFixture.h"

namespace brindlex {
namespace {

struct ClipboardPickerPanelControllerShowingTest : ClipboardPickerPanelFixture { };

TEST_F(ClipboardPickerPanelControllerShowingTest, showsAPickerThatFadesInAtTheNextTurn)
{
    show();
    EXPECT_EQ(panel.takeCalls(), (Texts{"alpha 0", inPlace, "make key"}));
    EXPECT_EQ(visible(), (Texts{"first", "second"}));
    EXPECT_EQ(panel.alpha(), 0);
    mainThread.runUntilIdle();
    EXPECT_EQ(panel.takeCalls(), (Texts{"display", "fade in"}));
    mainThread.advance(1);
    EXPECT_EQ(panel.alpha(), 1);
    EXPECT_TRUE(panel.isKey());
}

TEST_F(ClipboardPickerPanelControllerShowingTest, comesOnTheScreenOfThePointer)
{
    screens.present.screens.push_back(
        {.frame = {{1600, 0}, {1000, 1000}}, .visibleFrame = {{1600, 0}, {1000, 1000}}});
    screens.present.pointer = {1700, 10};
    show();
    EXPECT_EQ(panel.frame(), (Rect{{1800, 220}, {600, 400}}));
}

TEST_F(ClipboardPickerPanelControllerShowingTest, staysInItsPlaceWithoutAScreen)
{
    showSolid();
    screens.present = {};
    controller.show({});
    EXPECT_EQ(panel.frame(), (Rect{{500, 243.4}, {600, 400}}));
}

TEST_F(ClipboardPickerPanelControllerShowingTest, asksNothingOfThePanelUntilItIsShown)
{
    mainThread.advance(1);
    EXPECT_EQ(panel.takeCalls(), Texts{});
    EXPECT_TRUE(hosted.empty());
    EXPECT_FALSE(panel.isWatchingPresses());
}

TEST_F(ClipboardPickerPanelControllerShowingTest, beginsAfreshWithEachShowing)
{
    showSolid();
    picker().setQuery("second");
    picker().setCategory(ClipboardCategory::text);
    picker().cancel();
    copy(textItem("new"));
    show();
    EXPECT_EQ(panel.takeCalls(), (Texts{"order out", "alpha 0", inPlace, "make key"}));
    EXPECT_EQ(picker().content().value(),
        (ClipboardPicker::Content{
            .items = history.items().value(), .selected = history.items().value()[0]}));
}

TEST_F(ClipboardPickerPanelControllerShowingTest, isShownAnewWhileItIsVisible)
{
    show("first");
    mainThread.advance(1);
    picker().setQuery("second");
    panel.takeCalls();
    show("second");
    mainThread.advance(1);
    EXPECT_EQ(panel.takeCalls(), (Texts{inPlace, "make key"}));
    EXPECT_EQ(visible(), (Texts{"first", "second"}));
    EXPECT_EQ(outcomes, Texts{});
    hosted.front()->commit();
    hosted.front()->cancel();
    EXPECT_EQ(outcomes, Texts{});
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(ClipboardPickerPanelControllerShowingTest, goesOnFadingInWhenItIsShownAnew)
{
    show();
    mainThread.runUntilIdle();
    ASSERT_TRUE(panel.isFading());
    panel.takeCalls();
    show();
    mainThread.runUntilIdle();
    EXPECT_EQ(panel.takeCalls(), (Texts{inPlace, "make key"}));
    mainThread.advance(1);
    EXPECT_EQ(panel.alpha(), 1);
}

TEST_F(ClipboardPickerPanelControllerShowingTest, fadesInOnceWhenItIsShownTwiceInOneTurn)
{
    show();
    show();
    EXPECT_EQ(
        panel.takeCalls(), (Texts{"alpha 0", inPlace, "make key", "alpha 0", inPlace, "make key"}));
    mainThread.runUntilIdle();
    EXPECT_EQ(panel.takeCalls(), (Texts{"display", "fade in"}));
}

TEST_F(ClipboardPickerPanelControllerShowingTest, fadesInNothingThatIsHiddenAlready)
{
    show();
    picker().cancel();
    panel.takeCalls();
    mainThread.advance(1);
    EXPECT_EQ(panel.takeCalls(), Texts{});
}

TEST_F(ClipboardPickerPanelControllerShowingTest, warmsUpOutOfSight)
{
    controller.warmUp();
    EXPECT_EQ(panel.takeCalls(), (Texts{"alpha 0", inPlace, "order front"}));
    EXPECT_EQ(visible(), (Texts{"first", "second"}));
    EXPECT_FALSE(panel.isKey());
    mainThread.runUntilIdle();
    EXPECT_EQ(panel.takeCalls(), (Texts{"display", "order out"}));
    EXPECT_EQ(visible(), Texts{});
}

TEST_F(ClipboardPickerPanelControllerShowingTest, warmsUpOnce)
{
    controller.warmUp();
    controller.warmUp();
    mainThread.runUntilIdle();
    controller.warmUp();
    EXPECT_EQ(hosted.size(), 1U);
}

TEST_F(ClipboardPickerPanelControllerShowingTest, warmsUpNothingThatWasShown)
{
    show();
    picker().cancel();
    panel.takeCalls();
    controller.warmUp();
    EXPECT_EQ(panel.takeCalls(), Texts{});
    EXPECT_EQ(hosted.size(), 1U);
}

TEST_F(ClipboardPickerPanelControllerShowingTest, staysWhenItIsShownWhileItWarmsUp)
{
    controller.warmUp();
    panel.takeCalls();
    show();
    EXPECT_EQ(panel.takeCalls(), (Texts{"alpha 0", inPlace, "make key"}));
    mainThread.runUntilIdle();
    EXPECT_EQ(panel.takeCalls(), (Texts{"display", "fade in"}));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(visible(), (Texts{"first", "second"}));
}

TEST_F(ClipboardPickerPanelControllerShowingTest, isShownAfterItHasWarmedUp)
{
    controller.warmUp();
    mainThread.runUntilIdle();
    panel.takeCalls();
    show();
    mainThread.advance(1);
    EXPECT_EQ(panel.takeCalls(), (Texts{"alpha 0", inPlace, "make key", "display", "fade in"}));
    EXPECT_EQ(panel.alpha(), 1);
}

TEST_F(ClipboardPickerPanelControllerShowingTest, isHiddenAfterAnApplicationCameWhileItWarmedUp)
{
    controller.warmUp();
    bringToFront(7);
    mainThread.advance(1);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(outcomes, Texts{});
}

} // namespace
} // namespace brindlex
