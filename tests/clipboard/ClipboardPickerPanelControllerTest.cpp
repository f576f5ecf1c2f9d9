#include "clipboard/ClipboardPickerPanelController.h"

#include "clipboard/ClipboardPickerPanelFixture.h"

namespace brindlex {
namespace {

struct ClipboardPickerPanelControllerTest : ClipboardPickerPanelFixture { };

TEST_F(ClipboardPickerPanelControllerTest, hidesThePanelBeforeTheSelectedItemIsGivenOut)
{
    showSolid();
    picker().move(1);
    picker().commit();
    EXPECT_EQ(outcomes, Texts{"it selects second"});
    EXPECT_EQ(panel.takeCalls(), Texts{"order out"});
    EXPECT_FALSE(panel.isWatchingPresses());
}

TEST_F(ClipboardPickerPanelControllerTest, givesOutOneOutcomeOfAShowing)
{
    showSolid();
    picker().commit();
    picker().commit();
    picker().cancel();
    panel.pressOutside();
    bringToFront(7);
    EXPECT_EQ(outcomes, Texts{"it selects first"});
}

TEST_F(ClipboardPickerPanelControllerTest, goesWhenTheUserCancels)
{
    showSolid();
    picker().cancel();
    EXPECT_EQ(outcomes, Texts{"it is dismissed"});
    EXPECT_FALSE(panel.isVisible());
    picker().cancel();
    EXPECT_EQ(outcomes.size(), 1U);
}

TEST_F(ClipboardPickerPanelControllerTest, goesWhenItLosesTheKeys)
{
    showSolid();
    panel.resignKey();
    EXPECT_EQ(outcomes, Texts{"it is dismissed"});
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(ClipboardPickerPanelControllerTest, goesWhenTheUserPressesOutside)
{
    showSolid();
    panel.pressOutside();
    EXPECT_EQ(outcomes, Texts{"it is dismissed"});
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(panel.isWatchingPresses());
}

TEST_F(ClipboardPickerPanelControllerTest, goesWhenAnotherApplicationComesToTheFront)
{
    bringToFront(7);
    showSolid();
    bringToFront(8);
    EXPECT_EQ(outcomes, Texts{"it is dismissed"});
    EXPECT_FALSE(panel.isVisible());
    bringToFront(7);
    EXPECT_EQ(outcomes.size(), 1U);
    EXPECT_EQ(panel.takeCalls(), Texts{"order out"});
}

TEST_F(ClipboardPickerPanelControllerTest, staysWhenThisProgramComesToTheFront)
{
    showSolid();
    applications.bringToFront({instances.current(), "org.example.Program"});
    EXPECT_EQ(outcomes, Texts{});
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(ClipboardPickerPanelControllerTest, staysWhileAPreviewHasTheKeysAndGetsThemBack)
{
    copyPicture();
    showSolid();
    picker().preview();
    ASSERT_TRUE(previewer.isPreviewing());
    panel.resignKey();
    EXPECT_EQ(outcomes, Texts{});
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(panel.isKey());

    previewer.releaseKey(virtualKey::space);
    EXPECT_EQ(panel.takeCalls(), Texts{"make key"});
    EXPECT_TRUE(panel.isKey());
    panel.resignKey();
    EXPECT_EQ(outcomes, Texts{"it is dismissed"});
}

TEST_F(ClipboardPickerPanelControllerTest, takesThePreviewWithIt)
{
    copyPicture();
    showSolid();
    picker().preview();
    panel.pressOutside();
    EXPECT_FALSE(previewer.isPreviewing());
    EXPECT_EQ(outcomes, Texts{"it is dismissed"});
    EXPECT_EQ(panel.takeCalls(), Texts{"order out"});
}

TEST_F(ClipboardPickerPanelControllerTest, leavesAHiddenPanelHiddenWhenAPreviewCloses)
{
    showSolid();
    picker().cancel();
    panel.takeCalls();
    previewer.open(copyPicture());
    previewer.close();
    EXPECT_EQ(panel.takeCalls(), Texts{});
}

TEST_F(ClipboardPickerPanelControllerTest, watchesPressesOnceHoweverOftenItIsShown)
{
    show("first");
    show("second");
    panel.pressOutside();
    EXPECT_EQ(outcomes, Texts{"second is dismissed"});
}

TEST_F(ClipboardPickerPanelControllerTest, doesNotFollowTheHistoryWhileItIsHidden)
{
    showSolid();
    int contents = 0;
    picker().cancel();
    const auto observer
        = picker().content().stream().withoutFirst().subscribe([&](const auto&) { ++contents; });
    copyTexts({"a", "b"});
    EXPECT_EQ(contents, 0);
    EXPECT_EQ(visible(), Texts{});
}

TEST_F(ClipboardPickerPanelControllerTest, canBeShownFromInsideAnOutcome)
{
    controller.show({.onSelect = [this](const SharedClipboardItem&) { show("next"); }});
    mainThread.advance(1);
    picker().commit();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(hosted.size(), 2U);
    picker().commit();
    EXPECT_EQ(outcomes, Texts{"next selects first"});
}

TEST_F(ClipboardPickerPanelControllerTest, leavesNothingBehindWhenItGoes)
{
    std::optional<ClipboardPickerPanelController> mortal;
    mortal.emplace(ClipboardPickerPanelController::Abilities{panel, screens, applications,
                       instances, mainThread},
        parts, [](const auto&) {
            return Size{1, 1};
        });
    mortal->show({});
    ASSERT_TRUE(panel.isWatchingPresses());
    mortal.reset();
    panel.takeCalls();
    EXPECT_FALSE(panel.isWatchingPresses());
    mainThread.advance(1);
    EXPECT_EQ(panel.takeCalls(), Texts{});
}

} // namespace
} // namespace brindlex
