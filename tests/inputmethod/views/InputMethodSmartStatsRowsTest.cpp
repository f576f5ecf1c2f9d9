#include "inputmethod/views/InputMethodSettingsScreenFixture.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

namespace brindlex {
namespace {

/// The table of what was learned.
class InputMethodSmartStatsRowsTest : public InputMethodSettingsScreenTest {
protected:
    InputMethodSmartStatsRowsTest() { window = gallery.show("keyboard"); }

    QTableView& table() { return *window->findChild<QTableView*>(); }
    /// A right click on a row, or the key for menus while it is the current one.
    void askForMenu(int row, QContextMenuEvent::Reason reason)
    {
        const auto index = table().model()->index(row, SmartStatsModel::app);
        const auto place = table().visualRect(index).center();
        QContextMenuEvent event(reason, place, table().viewport()->mapToGlobal(place));
        table().setCurrentIndex(index);
        QApplication::sendEvent(
            reason == QContextMenuEvent::Mouse ? table().viewport() : &table(), &event);
    }
    /// As the window system reports it, which there is none of here.
    void pressed(const QKeySequence& keys)
    {
        for (auto* const shortcut : table().findChildren<QShortcut*>())
            if (shortcut->key() == keys)
                shortcut->activated();
    }
    /// Null where no menu is open.
    QMenu* menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    QAction* action(const QString& text)
    {
        for (auto* const action : menu()->actions())
            if (action->text() == text)
                return action;
        ADD_FAILURE() << "no action is called " << text.toStdString();
        return nullptr;
    }
    const SmartInputMethodAppStats& first()
    {
        return gallery.inputMethod.smartConfig().appStats.front();
    }
    QString cell(int row, int column)
    {
        return table().model()->index(row, column).data().toString();
    }
};

TEST_F(InputMethodSmartStatsRowsTest, keepsTheOrderOfTheListUntilAHeadIsClicked)
{
    EXPECT_EQ(cell(0, SmartStatsModel::app), "Code");
    EXPECT_EQ(cell(0, SmartStatsModel::status), "Active");
    EXPECT_EQ(cell(0, SmartStatsModel::samples), "10");
    EXPECT_EQ(cell(0, SmartStatsModel::match), "100%");
    EXPECT_EQ(cell(1, SmartStatsModel::status), "Learning");

    table().sortByColumn(SmartStatsModel::samples, Qt::AscendingOrder);

    EXPECT_EQ(cell(0, SmartStatsModel::app), "Notes");
}

TEST_F(InputMethodSmartStatsRowsTest, switchesALearnedRuleOff)
{
    table().model()->setData(
        table().model()->index(0, SmartStatsModel::disabled), Qt::Checked, Qt::CheckStateRole);

    EXPECT_TRUE(gallery.inputMethod.smartConfig().appStats.front().isDisabled);
    EXPECT_EQ(cell(0, SmartStatsModel::status), "Disabled");
}

TEST_F(InputMethodSmartStatsRowsTest, deletesWhatIsSelected)
{
    EXPECT_FALSE(control<QPushButton>("Delete stats")->isEnabled());
    table().selectRow(0);

    control<QPushButton>("Delete stats")->click();

    ASSERT_EQ(gallery.inputMethod.smartConfig().appStats.size(), 1U);
    EXPECT_EQ(cell(0, SmartStatsModel::app), "Notes");
}

TEST_F(InputMethodSmartStatsRowsTest, bringsBackWhatWasDeleted)
{
    const auto before = gallery.inputMethod.smartConfig();
    table().selectRow(0);
    control<QPushButton>("Delete stats")->click();
    ASSERT_EQ(gallery.inputMethod.smartConfig().appStats.size(), 1U);

    control<QPushButton>("Undo")->click();

    EXPECT_EQ(gallery.inputMethod.smartConfig(), before);
}

TEST_F(InputMethodSmartStatsRowsTest, clearsTheSamplesOfWhatIsSelected)
{
    table().selectRow(0);

    control<QPushButton>("Clear stats")->click();

    EXPECT_TRUE(gallery.inputMethod.smartConfig().appStats.front().samples.empty());
}

TEST_F(InputMethodSmartStatsRowsTest, offersInAMenuWhatThereIsToDoWithARow)
{
    askForMenu(0, QContextMenuEvent::Mouse);

    ASSERT_TRUE(menu());
    QStringList texts;
    for (const auto* const action : menu()->actions())
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    EXPECT_EQ(texts, (QStringList{"Disabled", "-", "Clear stats", "Delete stats"}));
    EXPECT_FALSE(action("Disabled")->isChecked());
    EXPECT_TRUE(control<QPushButton>("Delete stats")->isEnabled()) << "the row is selected";
}

TEST_F(InputMethodSmartStatsRowsTest, switchesALearnedRuleOffAndOnInTheMenu)
{
    askForMenu(0, QContextMenuEvent::Mouse);
    action("Disabled")->trigger();
    EXPECT_TRUE(first().isDisabled);

    menu()->close();
    askForMenu(0, QContextMenuEvent::Mouse);
    EXPECT_TRUE(action("Disabled")->isChecked());
    action("Disabled")->trigger();

    EXPECT_FALSE(first().isDisabled);
}

TEST_F(InputMethodSmartStatsRowsTest, clearsAndDeletesTheRowOfTheMenu)
{
    askForMenu(0, QContextMenuEvent::Mouse);
    action("Clear stats")->trigger();
    EXPECT_TRUE(first().samples.empty());
    EXPECT_EQ(first().app.bundleID, "org.example.Code");

    menu()->close();
    askForMenu(1, QContextMenuEvent::Mouse);
    action("Delete stats")->trigger();

    EXPECT_EQ(gallery.inputMethod.smartConfig().appStats.size(), 1U);
    EXPECT_EQ(first().app.bundleID, "org.example.Code");
}

TEST_F(InputMethodSmartStatsRowsTest, opensTheMenuByTheKeyForMenus)
{
    askForMenu(1, QContextMenuEvent::Keyboard);
    ASSERT_TRUE(menu());

    action("Delete stats")->trigger();

    EXPECT_EQ(first().app.bundleID, "org.example.Code");
}

TEST_F(InputMethodSmartStatsRowsTest, opensTheMenuWhereAKeyboardHasNoKeyForIt)
{
    table().setCurrentIndex(table().model()->index(1, SmartStatsModel::match));

    pressed(Qt::SHIFT | Qt::Key_F10);
    ASSERT_TRUE(menu());
    action("Disabled")->trigger();

    EXPECT_TRUE(gallery.inputMethod.smartConfig().appStats.back().isDisabled);
}

TEST_F(InputMethodSmartStatsRowsTest, hasNoMenuBesideTheRows)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, {-1, -1}, {});
    QApplication::sendEvent(table().viewport(), &event);

    EXPECT_FALSE(menu());
}

} // namespace
} // namespace brindlex
