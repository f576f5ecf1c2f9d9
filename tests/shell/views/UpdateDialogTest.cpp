#include "shell/views/UpdateDialog.h"

#include "support/views/ScreenGallery.h"
#include "support/views/TextFit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

const UpdateMessage newer{"Version 1.2.0 is available", "You have version 1.1.0.",
    "Faster switching.\nMore browsers.", "https://a.example/get"};
const UpdateMessage current{"Brindlex is up to date", "Version 1.1.0 is the newest one.", "", ""};

class UpdateDialogTest : public testing::Test {
protected:
    void show(const UpdateMessage& message)
    {
        dialog = std::make_unique<UpdateDialog>(gallery.context(), message,
            [this](const std::string& address) { opened.push_back(address); });
        dialog->show();
        QApplication::processEvents();
    }
    void press(int key, QWidget* receiver)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(receiver, &event);
    }
    QPlainTextEdit& notes() const { return *dialog->findChild<QPlainTextEdit*>(); }
    QPushButton* button(const QString& name) const
    {
        for (auto* const each : dialog->findChildren<QPushButton*>())
            if (each->accessibleName() == name && each->isVisible())
                return each;
        return nullptr;
    }

    ScreenGallery gallery{StringCatalogue("en")};
    std::vector<std::string> opened;
    std::unique_ptr<UpdateDialog> dialog;
};

TEST_F(UpdateDialogTest, opensThePageByReturnAndIsClosed)
{
    show(newer);

    press(Qt::Key_Return, dialog.get());

    EXPECT_EQ(opened, std::vector<std::string>{"https://a.example/get"});
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(UpdateDialogTest, opensNothingByEscape)
{
    show(newer);

    press(Qt::Key_Escape, &notes());

    EXPECT_EQ(opened, std::vector<std::string>{});
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(UpdateDialogTest, isClosedByReturnWhereThereIsNothingToGet)
{
    show(current);
    EXPECT_EQ(button("Open Download Page"), nullptr);
    EXPECT_FALSE(notes().isVisible());

    press(Qt::Key_Return, dialog.get());

    EXPECT_EQ(opened, std::vector<std::string>{});
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(UpdateDialogTest, isAsHighAsItsWordsNeed)
{
    show(current);
    EXPECT_EQ(dialog->minimumSize(), dialog->maximumSize());
    EXPECT_LT(dialog->height(), 200);

    dialog->setMessage(newer);
    QApplication::processEvents();
    EXPECT_EQ(dialog->size(), QSize(480, 420));
    EXPECT_EQ(textFaults(*dialog), std::vector<std::string>{});

    dialog->setMessage(current);
    QApplication::processEvents();
    EXPECT_LT(dialog->height(), 200);
    EXPECT_EQ(textFaults(*dialog), std::vector<std::string>{});
}

TEST_F(UpdateDialogTest, showsTheNewMessageInPlaceOfTheOneBefore)
{
    show(current);

    dialog->setMessage(newer);

    EXPECT_EQ(dialog->windowTitle(), "Version 1.2.0 is available");
    EXPECT_EQ(notes().toPlainText(), "Faster switching.\nMore browsers.");
    ASSERT_NE(button("Open Download Page"), nullptr);
    EXPECT_TRUE(button("Open Download Page")->isDefault());
    EXPECT_FALSE(button("Close")->isDefault());
}

TEST_F(UpdateDialogTest, showsMarkupAsItIsWritten)
{
    auto message = newer;
    message.title = "<h1>Version</h1>";
    message.detail = "<img src='file:///etc/passwd'>";
    message.notes = "<a href=\"https://evil.example\">Click</a> **bold**";

    show(message);

    EXPECT_EQ(notes().toPlainText().toStdString(), message.notes);
    for (const auto* const label : dialog->findChildren<QLabel*>())
        EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
    EXPECT_FALSE(notes().textInteractionFlags().testFlag(Qt::LinksAccessibleByMouse));
}

TEST_F(UpdateDialogTest, keepsItsSizeWithAnyNotes)
{
    const std::vector<std::string> all{std::string(60'000, 'x'), std::string(60'000, '\n') + "x",
        "\u202Eright to left \u05D0\u05D1\u05D2 \u0627\u0644\u0639\u0631\u0628\u064A\u0629",
        std::string(64, '\t') + "x", "a\r\nb\rc\u2028d\u0001\u001b[31m"};
    for (const auto& notesOfFeed : all) {
        auto message = newer;
        message.notes = notesOfFeed;
        show(message);

        EXPECT_EQ(dialog->size(), QSize(480, 420));
        EXPECT_EQ(notes().horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(textFaults(*dialog), std::vector<std::string>{});
        EXPECT_TRUE(button("Open Download Page")->isVisible());
    }
}

TEST_F(UpdateDialogTest, scrollsAndSelectsNotesByTheKeyboard)
{
    auto message = newer;
    for (int line = 0; line < 200; ++line)
        message.notes += "\nLine " + std::to_string(line);
    show(message);
    EXPECT_GT(notes().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(notes().verticalScrollBar()->value(), 0);

    QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    QApplication::sendEvent(&notes(), &end);

    EXPECT_EQ(notes().textCursor().selectedText().size(), notes().toPlainText().size());
    EXPECT_GT(notes().verticalScrollBar()->value(), 0);
}

} // namespace
} // namespace brindlex
