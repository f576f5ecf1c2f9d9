#include "clipboard/views/ClipboardClearRow.h"

#include "clipboard/views/ClipboardSettingsScreenFixture.h"

namespace brindlex {
namespace {

using ClipboardClearRowTest = ClipboardSettingsScreenFixture;

constexpr auto question = "Delete all clipboard history? This cannot be undone.";

TEST_F(ClipboardClearRowTest, asksBeforeItDeletes)
{
    show("clipboard");
    click(middleOf(control<QPushButton>("Clear")));
    EXPECT_TRUE(says(question));
    EXPECT_EQ(QApplication::focusWidget(), control<QPushButton>("Cancel"));
    EXPECT_EQ(items(), 31U);
}

TEST_F(ClipboardClearRowTest, deletesByTheMouse)
{
    show("clipboard");
    click(middleOf(control<QPushButton>("Clear")));
    click(middleOf(control<QPushButton>("Clear")));
    EXPECT_EQ(items(), 0U);
    EXPECT_FALSE(says(question));
    EXPECT_TRUE(says("No items"));
    EXPECT_FALSE(control<QPushButton>("Clear")->isEnabled());
}

TEST_F(ClipboardClearRowTest, deletesNothingByADoubleClick)
{
    for (const auto* const language : {"en", "zh-Hans", "de", "fr", "ja"}) {
        show("clipboard", language);
        const auto* const clear = all<QPushButton>().back();
        const auto place = middleOf(clear);
        click(place);
        EXPECT_FALSE(clear->isVisible()) << language;
        click(place);
        EXPECT_TRUE(clear->isVisible()) << language;
        EXPECT_EQ(items(), 31U) << language;
    }
}

TEST_F(ClipboardClearRowTest, deletesByTheKeyboardAlone)
{
    show("clipboard");
    control<QPushButton>("Open Folder")->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), control<QPushButton>("Clear"));
    press(Qt::Key_Space);
    EXPECT_TRUE(says(question));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), control<QPushButton>("Clear"));
    press(Qt::Key_Space);
    EXPECT_EQ(items(), 0U);
    EXPECT_EQ(QApplication::focusWidget(), control<QPushButton>("Open Folder"));
}

TEST_F(ClipboardClearRowTest, refusesByItsSecondButton)
{
    show("clipboard");
    control<QPushButton>("Clear")->setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    EXPECT_FALSE(says(question));
    EXPECT_TRUE(says("Deletes all items, pinned ones too"));
    EXPECT_EQ(QApplication::focusWidget(), control<QPushButton>("Clear"));
    EXPECT_EQ(items(), 31U);
}

TEST_F(ClipboardClearRowTest, refusesByEscapeAndKeepsTheWindow)
{
    show("clipboard");
    control<QPushButton>("Clear")->click();
    press(Qt::Key_Escape);
    EXPECT_FALSE(says(question));
    EXPECT_EQ(QApplication::focusWidget(), control<QPushButton>("Clear"));
    EXPECT_EQ(items(), 31U);
    EXPECT_TRUE(window->isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible()) << "as everywhere else";
}

TEST_F(ClipboardClearRowTest, asksNoMoreOnceThereIsNothingToDelete)
{
    show("clipboard");
    control<QPushButton>("Clear")->click();
    gallery->clipboardStore.clear();
    EXPECT_FALSE(says(question));
    EXPECT_FALSE(control<QPushButton>("Clear")->isEnabled());
    gallery->clipboardStore.add(textItem("another"));
    EXPECT_TRUE(control<QPushButton>("Clear")->isEnabled());
    EXPECT_FALSE(says(question));
}

TEST_F(ClipboardClearRowTest, asksNoMoreWhenItIsSeenAgain)
{
    show("clipboard");
    control<QPushButton>("Clear")->click();
    window->hide();
    window->show();
    EXPECT_FALSE(says(question));
    EXPECT_EQ(items(), 31U);
}

} // namespace
} // namespace brindlex
