#include "shell/views/PermissionGuideScreen.h"

#include "support/views/ScreenGallery.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using State = AutomationPermission::State;

class PermissionGuideScreenTest : public testing::Test {
protected:
    /// The button of that name that is to be seen.
    QPushButton* button(const QString& name)
    {
        for (auto* const found : window->findChildren<QPushButton*>())
            if (found->accessibleName() == name && found->isVisible())
                return found;
        return nullptr;
    }
    /// Whether the words stand somewhere on the screen.
    bool says(const QString& words)
    {
        for (const auto* const label : window->findChildren<TextLabel*>())
            if (label->isVisible() && label->text().contains(words))
                return true;
        return false;
    }
    int count(const QString& words)
    {
        int found = 0;
        for (const auto* const label : window->findChildren<TextLabel*>())
            found += label->isVisible() && label->text() == words ? 1 : 0;
        return found;
    }

    ScreenGallery gallery{StringCatalogue("en")};
    std::unique_ptr<QWidget> window = gallery.show("permissions-missing");
};

TEST_F(PermissionGuideScreenTest, offersToAllowWhatTheUserHasSwitchedOff)
{
    ASSERT_TRUE(button("Allow: Input Monitoring"));
    EXPECT_TRUE(says("You have switched this off in Brindlex."));

    button("Allow: Input Monitoring")->click();

    EXPECT_TRUE(gallery.computer.eventPermissions.canListen);
    EXPECT_FALSE(gallery.computer.eventPermissions.isTrusted);
    EXPECT_FALSE(button("Allow: Input Monitoring"));
    EXPECT_EQ(count("Allowed"), 1);
}

TEST_F(PermissionGuideScreenTest, switchesAccessibilityOnAndSaysWhatIsLeftToDo)
{
    ASSERT_TRUE(button("Switch On: Website Detection"));

    button("Switch On: Website Detection")->click();

    EXPECT_EQ(gallery.computer.automation.state().value(), State::on);
    EXPECT_FALSE(button("Switch On: Website Detection"));
    EXPECT_TRUE(says("Start your browsers again so that they take part."));
    EXPECT_EQ(count("Check Manually"), 1);
}

TEST_F(PermissionGuideScreenTest, saysWhatTheServerLacksWithoutAButton)
{
    gallery.computer.eventPermissions.reason = {PermissionObstacle::Reason::lacking, "XTEST"};

    button("Refresh")->click();

    EXPECT_TRUE(says("The X server lacks XTEST, which this needs."));
    EXPECT_FALSE(button("Allow: Input Monitoring"));
}

TEST_F(PermissionGuideScreenTest, saysWhereNoProgramIsGivenTheInput)
{
    gallery.computer.eventPermissions.reason = {PermissionObstacle::Reason::closedSession, {}};

    button("Refresh")->click();

    EXPECT_TRUE(says("A Wayland session gives the input to no program."));
}

TEST_F(PermissionGuideScreenTest, saysWhatToInstallWhereThereIsNoService)
{
    gallery.computer.automation.system = State::unavailable;

    button("Refresh")->click();

    EXPECT_TRUE(says("Install the package at-spi2-core."));
    EXPECT_EQ(count("Needs Setup"), 3);
}

TEST_F(PermissionGuideScreenTest, followsWhatChangesElsewhere)
{
    gallery.computer.eventPermissions.set(true);
    gallery.computer.eventPermissions.notify();

    EXPECT_EQ(count("Allowed"), 2);
}

TEST_F(PermissionGuideScreenTest, readsEverythingAnewWhenItBecomesTheActiveWindow)
{
    gallery.computer.automation.system = State::on;
    QEvent activation(QEvent::WindowActivate);

    QApplication::sendEvent(window.get(), &activation);

    EXPECT_EQ(count("Check Manually"), 1);
}

TEST_F(PermissionGuideScreenTest, closesByEscape)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &escape);

    EXPECT_FALSE(window->isVisible());
}

} // namespace
} // namespace brindlex
