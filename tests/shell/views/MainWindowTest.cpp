#include "shell/views/MainWindow.h"

#include "support/views/ScreenGallery.h"

#include <QApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

class MainWindowTest : public testing::Test {
protected:
    MainWindow& window() { return static_cast<MainWindow&>(*shown); }

    ScreenGallery gallery{StringCatalogue("en")};
    std::unique_ptr<QWidget> shown = gallery.show("mouse");
};

TEST_F(MainWindowTest, opensAtTheTabThatIsStored)
{
    EXPECT_EQ(window().selection(), MainWindowTab::mouse);
    EXPECT_EQ(window().findChild<TabStrip*>()->currentIndex(), 3);
}

TEST_F(MainWindowTest, storesTheTabThatIsSelected)
{
    window().findChild<TabStrip*>()->setCurrentIndex(6);

    EXPECT_EQ(gallery.computer.defaults.value("selectedMainWindowTab"), PreferenceValue("About"));
}

TEST_F(MainWindowTest, staysAsLargeAsItIsWhicheverTabIsSelected)
{
    for (int tab = 0; tab < 7; ++tab) {
        window().findChild<TabStrip*>()->setCurrentIndex(tab);
        QApplication::processEvents();
        EXPECT_EQ(window().size(), QSize(650, 540)) << tab;
    }
}

TEST_F(MainWindowTest, closesByEscape)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&window(), &escape);

    EXPECT_FALSE(window().isVisible());
}

TEST_F(MainWindowTest, logsThatTheAboutScreenIsShown)
{
    gallery.log.takeLines();
    window().select(MainWindowTab::about);
    QApplication::processEvents();

    EXPECT_EQ(gallery.log.lines(), (std::vector<std::string>{"INFO [ui] About screen appeared"}));
}

TEST_F(MainWindowTest, logsWhichLinkWasClicked)
{
    window().select(MainWindowTab::about);
    QApplication::processEvents();
    gallery.log.takeLines();

    for (const auto* name : {"Open: Official Website", "Open: Contact Support"})
        for (auto* const button : window().findChildren<QAbstractButton*>())
            if (button->accessibleName() == name)
                button->click();

    EXPECT_EQ(gallery.log.lines(),
        (std::vector<std::string>{
            "NOTICE [ui] Open website requested", "NOTICE [ui] Contact support requested"}));
}

} // namespace
} // namespace brindlex
