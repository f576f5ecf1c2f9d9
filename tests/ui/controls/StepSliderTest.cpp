#include "ui/controls/StepSlider.h"

#include <QApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(StepSlider, saysTheStepThatTheUserMovesItTo)
{
    const Theme theme;
    std::vector<int> moved;
    StepSlider slider(theme, "Name",
        {.least = 0, .most = 3, .text = [](int step) { return QString::number(step * 10); }},
        [&](int step) { moved.push_back(step); });
    slider.show(1, "about 12");
    auto* const label = slider.findChild<QLabel*>();
    EXPECT_EQ(label->text(), "about 12");
    EXPECT_TRUE(moved.empty());

    QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(slider.focusProxy(), &right);

    EXPECT_EQ(moved, (std::vector<int>{2}));
    EXPECT_EQ(label->text(), "20");
}

} // namespace
} // namespace brindlex
