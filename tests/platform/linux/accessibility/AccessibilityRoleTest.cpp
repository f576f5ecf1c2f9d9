#include "platform/linux/accessibility/AccessibilityRole.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(AccessibilityRole, isASplitterForADividerOfEachToolkit)
{
    EXPECT_EQ((AccessibilityRole{.number = 53, .isDeepest = true}).text(), "AXSplitter");
    EXPECT_EQ((AccessibilityRole{.number = 67, .name = "GtkPanedHandle"}).text(), "AXSplitter");
    EXPECT_EQ((AccessibilityRole{.number = 50, .thickness = 16}).text(), "AXSplitter");
    EXPECT_EQ((AccessibilityRole{.number = 67, .roleName = "grip"}).text(), "AXHandle");
}

TEST(AccessibilityRole, isNoSplitterForWhatIsNotDragged)
{
    EXPECT_EQ((AccessibilityRole{.number = 53}).text(), "AXSplitGroup");
    EXPECT_EQ((AccessibilityRole{.number = 50, .thickness = 17}).text(), "AXUnknown");
    EXPECT_EQ((AccessibilityRole{.number = 50, .thickness = 0}).text(), "AXUnknown");
}

TEST(AccessibilityRole, hasTheWordsOfMacOSForWhatIsCommon)
{
    EXPECT_EQ((AccessibilityRole{.number = 23}).text(), "AXWindow");
    EXPECT_EQ((AccessibilityRole{.number = 43}).text(), "AXButton");
    EXPECT_EQ((AccessibilityRole{.number = 39}).text(), "AXGroup");
    EXPECT_EQ((AccessibilityRole{.number = 95}).text(), "AXWebArea");
    EXPECT_EQ((AccessibilityRole{.number = 4'000'000'000}).text(), "AXUnknown");
}

TEST(AccessibilityRole, needsNamesOnlyWhereTheNumberSaysNothing)
{
    for (const auto number : {0U, 20U, 39U, 67U})
        EXPECT_TRUE(AccessibilityRole{.number = number}.needsNames()) << number;
    for (const auto number : {23U, 43U, 50U, 53U})
        EXPECT_FALSE(AccessibilityRole{.number = number}.needsNames()) << number;
}

} // namespace
} // namespace brindlex
