#include "ui/controls/Chooser.h"

#include <QApplication>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

class ChooserTest : public testing::Test {
protected:
    ChooserTest() { chooser.show({{"a", "First", {}}, {"b", "Second", "B"}}, "b"); }

    const Theme theme;
    std::vector<std::string> chosen;
    Chooser chooser{theme, "Name", [this](const std::string& value) { chosen.push_back(value); }};
};

TEST_F(ChooserTest, showsTheOptionOfTheValue)
{
    EXPECT_EQ(chooser.currentText(), "Second");
    EXPECT_EQ(chooser.toolTip(), "Second");
    EXPECT_TRUE(chosen.empty());
}

TEST_F(ChooserTest, showsNothingForAValueThatHasNoOption)
{
    chooser.show({{"a", "First", {}}}, "c");

    EXPECT_EQ(chooser.currentIndex(), -1);
    EXPECT_TRUE(chosen.empty());
}

TEST_F(ChooserTest, notifiesOfWhatTheUserChooses)
{
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QApplication::sendEvent(&chooser, &up);

    EXPECT_EQ(chosen, (std::vector<std::string>{"a"}));
}

TEST_F(ChooserTest, leavesTheWheelToThePageUnlessItHasTheFocus)
{
    QWheelEvent wheel(
        {5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&chooser, &wheel);

    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_EQ(chooser.currentText(), "Second");
}

} // namespace
} // namespace brindlex
