#include "inputmethod/views/InputMethodSettingsScreenFixture.h"

#include <QPushButton>
#include <QTableView>

namespace brindlex {
namespace {

/// The table of what was learned.
class InputMethodSmartStatsRowsTest : public InputMethodSettingsScreenTest {
protected:
    InputMethodSmartStatsRowsTest() { window = gallery.show("keyboard"); }

    QTableView& table() { return *window->findChild<QTableView*>(); }
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

TEST_F(InputMethodSmartStatsRowsTest, clearsTheSamplesOfWhatIsSelected)
{
    table().selectRow(0);

    control<QPushButton>("Clear stats")->click();

    EXPECT_TRUE(gallery.inputMethod.smartConfig().appStats.front().samples.empty());
}

} // namespace
} // namespace brindlex
