#include "ui/controls/ToggleSwitch.h"

#include "support/views/ScopedFont.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ToggleSwitch, notifiesOfWhatTheUserSwitches)
{
    const Theme theme;
    std::vector<bool> switched;
    ToggleSwitch control(theme, "Name", [&](bool isOn) { switched.push_back(isOn); });

    control.click();
    control.click();

    EXPECT_EQ(switched, (std::vector<bool>{true, false}));
}

TEST(ToggleSwitch, growsWithTheText)
{
    const Theme theme;
    ToggleSwitch control(theme, "Name", [](bool) {});
    const auto usual = control.size();

    const ScopedFont large(2);
    QApplication::processEvents();

    EXPECT_GT(control.width(), usual.width());
    EXPECT_EQ(control.size(), control.sizeHint());
}

TEST(ToggleSwitch, notifiesOfNothingThatTheProgramShows)
{
    const Theme theme;
    int switched = 0;
    ToggleSwitch control(theme, "Name", [&](bool) { ++switched; });

    control.show(true);

    EXPECT_TRUE(control.isChecked());
    EXPECT_EQ(switched, 0);
}

TEST(ToggleSwitch, isThereAtOnceWhereNothingIsToMove)
{
    const Theme theme({.reducesMotion = true});
    ToggleSwitch control(theme, "Name", [](bool) {});
    const auto before = control.grab().toImage();

    control.click();

    const auto middleOfKnob = QPoint(control.width() - 15, control.height() / 2);
    EXPECT_EQ(control.grab().toImage().pixelColor(middleOfKnob), QColor(Qt::white));
    EXPECT_NE(before, control.grab().toImage());
}

TEST(ToggleSwitch, isFainterWhileItCannotBeSwitched)
{
    const Theme theme({.reducesMotion = true});
    ToggleSwitch control(theme, "Name", [](bool) {});
    control.show(true);
    const QPoint onTrack(10, control.height() / 2);
    const auto usual = control.grab().toImage().pixelColor(onTrack);

    control.setEnabled(false);

    EXPECT_GT(control.grab().toImage().pixelColor(onTrack).lightness(), usual.lightness());
    control.click();
    EXPECT_TRUE(control.isChecked());
}

} // namespace
} // namespace brindlex
