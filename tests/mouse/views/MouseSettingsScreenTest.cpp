#include "mouse/views/MouseSettingsScreen.h"

#include "platform/VirtualKey.h"
#include "support/views/ScreenGallery.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// The screen of the mouse as a user has it in front.
class MouseSettingsScreenTest : public testing::Test {
protected:
    template <typename Control>
    std::vector<Control*> controls(const QString& name)
    {
        QApplication::processEvents();
        std::vector<Control*> found;
        for (auto* const each : window->findChildren<Control*>())
            if (each->accessibleName() == name && each->isVisible())
                found.push_back(each);
        return found;
    }
    template <typename Control>
    Control* control(const QString& name)
    {
        const auto found = controls<Control>(name);
        EXPECT_EQ(found.size(), 1U) << name.toStdString();
        return found.empty() ? nullptr : found.front();
    }
    void press(QWidget* widget, int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
    const MouseConfig& config() { return gallery.mouse.config(); }

    ScreenGallery gallery{StringCatalogue("en")};
    std::unique_ptr<QWidget> window = gallery.show("mouse-empty");
};

TEST_F(MouseSettingsScreenTest, addsABindingOfTheSideButtonBack)
{
    control<QPushButton>("Add Binding")->click();

    ASSERT_EQ(config().click.bindings.size(), 1U);
    EXPECT_EQ(config().click.bindings.front().action, MouseAction::Any(MouseAction::Plain::back));
    EXPECT_EQ(control<QComboBox>("Button")->currentText(), "Side Back (4)");
    EXPECT_EQ(control<QComboBox>("Action")->currentText(), "Workspace Left");
}

TEST_F(MouseSettingsScreenTest, changesWhatABindingDoes)
{
    control<QPushButton>("Add Binding")->click();
    press(control<QComboBox>("Button"), Qt::Key_Up);
    press(control<QComboBox>("Action"), Qt::Key_Up);

    const auto& binding = config().click.bindings.front();
    EXPECT_EQ(binding.button, MouseButton::button3);
    EXPECT_EQ(binding.action, MouseAction::Any(MouseAction::Plain::missionControl));
}

TEST_F(MouseSettingsScreenTest, recordsTheKeyOfAKeystroke)
{
    control<QPushButton>("Add Binding")->click();
    press(control<QComboBox>("Action"), Qt::Key_End);
    auto* const field = control<KeyRecorderField>("Custom Shortcut: Record");
    ASSERT_TRUE(field);

    field->click();
    EXPECT_TRUE(control<KeyRecorderField>("Custom Shortcut: Press a key"));
    gallery.computer.activation.becomeActive();
    gallery.computer.keyboard.press(virtualKey::leftArrow);

    EXPECT_EQ(config().click.bindings.front().action,
        MouseAction::Any(MouseAction::SendKeystroke{virtualKey::leftArrow, {}}));
    EXPECT_TRUE(control<KeyRecorderField>("Custom Shortcut: Left"));
}

TEST_F(MouseSettingsScreenTest, addsAndRemovesAGestureAndBringsItBack)
{
    control<QPushButton>("Add Gesture")->click();
    press(control<QComboBox>("Direction"), Qt::Key_Up);
    const auto before = config().gesture.bindings;
    EXPECT_EQ(before.front().direction, MouseDirection::left);

    control<QToolButton>("Remove gesture")->click();
    EXPECT_TRUE(config().gesture.bindings.empty());
    control<QPushButton>("Undo")->click();

    EXPECT_EQ(config().gesture.bindings, before);
}

TEST_F(MouseSettingsScreenTest, keepsAValueBetweenTwoStepsUntilItsSliderIsMoved)
{
    gallery.mouse.change([](MouseConfig& config) {
        config.scroll.smoothDuration = 0.19;
        config.gesture.distanceThreshold = 33;
    });
    EXPECT_EQ(control<QSlider>("Duration")->value(), 4);
    EXPECT_EQ(config().scroll.smoothDuration, 0.19);
    EXPECT_EQ(config().gesture.distanceThreshold, 33);

    press(control<QSlider>("Duration"), Qt::Key_Right);
    press(control<QSlider>("Distance"), Qt::Key_Right);

    EXPECT_EQ(config().scroll.smoothDuration, 0.2);
    EXPECT_EQ(config().gesture.distanceThreshold, 40);
}

TEST_F(MouseSettingsScreenTest, leavesTheWheelAloneInTheApplicationThatIsChosen)
{
    control<QPushButton>("Add App")->click();
    ASSERT_EQ(config().scroll.disabledApps.size(), 1U);

    control<QToolButton>("Remove app: Editor")->click();
    EXPECT_TRUE(config().scroll.disabledApps.empty());
    control<QPushButton>("Undo")->click();

    EXPECT_EQ(config().scroll.disabledApps.front().bundleID, "org.example.Editor");
}

} // namespace
} // namespace brindlex
