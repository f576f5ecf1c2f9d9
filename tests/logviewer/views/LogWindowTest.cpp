#include "logviewer/views/LogWindow.h"

#include "support/views/ScreenGallery.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTableView>
#include <gtest/gtest.h>

#include <fstream>

namespace brindlex {
namespace {

class LogWindowTest : public testing::Test {
protected:
    void write(const std::string& lines, std::ios::openmode mode = std::ios::app)
    {
        std::ofstream(Log::fileURL(Log::Subsystem::app).value(), mode) << lines;
        gallery.computer.mainThread.advance(1.0);
        QApplication::processEvents();
    }
    QTableView& table() { return *window->findChild<QTableView*>(); }
    QString cell(int row, int column)
    {
        return table().model()->index(row, column).data().toString();
    }
    template <typename Control>
    Control* control(const QString& name)
    {
        for (auto* const found : window->findChildren<Control*>())
            if (found->accessibleName() == name)
                return found;
        ADD_FAILURE() << "no control is called " << name.toStdString();
        return nullptr;
    }

    ScreenGallery gallery{StringCatalogue("en")};
    std::unique_ptr<QWidget> window = gallery.show("logs");
};

TEST_F(LogWindowTest, addsWhatIsWrittenAndKeepsTheSelection)
{
    ASSERT_EQ(table().model()->rowCount(), 4);
    table().selectRow(1);

    write("2026-11-22T14:02:00.000Z INFO   [ui] Brindlex/Window:7 — One more\n");

    EXPECT_EQ(cell(4, LogTableModel::message), "One more");
    EXPECT_EQ(table().currentIndex().row(), 1);
}

TEST_F(LogWindowTest, beginsAnewWithAFileThatWasRotated)
{
    write("2026-11-22T15:00:00.000Z INFO   [ui] Brindlex/Window:7 — New file\n", std::ios::trunc);

    ASSERT_EQ(table().model()->rowCount(), 1);
    EXPECT_EQ(cell(0, LogTableModel::message), "New file");
}

TEST_F(LogWindowTest, searchesMessageCategoryAndLocation)
{
    auto* const search = control<QLineEdit>("Search message, category, location");

    search->setText("mouse");
    ASSERT_EQ(table().model()->rowCount(), 1);
    EXPECT_EQ(cell(0, LogTableModel::message), "A button is held elsewhere");

    search->setText("nowhere");
    EXPECT_FALSE(table().isVisible());
}

TEST_F(LogWindowTest, copiesTheSelectedEntry)
{
    table().selectRow(2);

    control<QPushButton>("Copy Message")->click();
    EXPECT_EQ(QApplication::clipboard()->text(), "Something failed");

    control<QPushButton>("Copy Raw Entry")->click();
    EXPECT_EQ(QApplication::clipboard()->text(),
        "2026-11-22T14:01:54.500Z ERROR  [ui] Brindlex/Window:7 — Something failed");
}

TEST_F(LogWindowTest, showsTimesByTheClockOfTheUserAndOthersAsTheyStand)
{
    write("yesterday INFO   [ui] Brindlex/Window:7 — Untimely\n");

    EXPECT_EQ(cell(0, LogTableModel::time), "14:01:52.118");
    EXPECT_EQ(cell(4, LogTableModel::time), "yesterday");
    EXPECT_EQ(cell(3, LogTableModel::level), "RAW");
}

TEST_F(LogWindowTest, drawsTheBeginningOfALineOfAnyLength)
{
    write(std::string(2'000'000, 'x') + "\n");

    EXPECT_EQ(cell(4, LogTableModel::message).size(), 1'000);
    table().selectRow(4);
    control<QPushButton>("Copy Message")->click();
    EXPECT_EQ(QApplication::clipboard()->text().size(), 2'000'000);
}

TEST_F(LogWindowTest, saysThatThereIsNothingYet)
{
    write("", std::ios::trunc);

    EXPECT_FALSE(table().isVisible());
    bool isSaid = false;
    for (const auto* const label : window->findChildren<QLabel*>())
        isSaid = isSaid || (label->isVisible() && label->text() == "No Logs Yet");
    EXPECT_TRUE(isSaid);
}

TEST_F(LogWindowTest, closesByEscape)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &escape);

    EXPECT_FALSE(window->isVisible());
}

} // namespace
} // namespace brindlex
