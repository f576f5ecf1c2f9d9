#include "clipboard/views/ClipboardPickerViewFixture.h"

#include "support/views/ScopedFont.h"
#include "support/views/TextFit.h"

namespace brindlex {
namespace {

using ClipboardPickerViewTest = ClipboardPickerViewFixture;

TEST_F(ClipboardPickerViewTest, showsTheHistoryWithItsFirstItemSelected)
{
    copyTexts({"third", "second", "first"});
    show();
    EXPECT_EQ(titles(), (QStringList{"first", "second", "third"}));
    EXPECT_EQ(selected(), "first");
    EXPECT_EQ(search().text(), "");
    EXPECT_EQ(QApplication::focusWidget(), &search());
}

TEST_F(ClipboardPickerViewTest, isUsedByTheKeyboardAlone)
{
    copyTexts({"a letter home", "a shopping list", "the last letter"});
    show();
    type("le");
    EXPECT_EQ(titles(), (QStringList{"the last letter", "a letter home"}));
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), "a letter home");
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, Texts{"text:a letter home"});
}

TEST_F(ClipboardPickerViewTest, writesWhatMeansNothingToTheList)
{
    copyTexts({"1 space"});
    show();
    type("1 s");
    EXPECT_EQ(search().text(), "1 s");
    press(Qt::Key_Backspace);
    EXPECT_EQ(search().text(), "1 ");
    EXPECT_EQ(titles(), QStringList{"1 space"});
}

TEST_F(ClipboardPickerViewTest, choosesAnItemByItsDigit)
{
    copyTexts({"third", "second", "first"});
    show();
    press(Qt::Key_2, Qt::MetaModifier, "2");
    EXPECT_EQ(chosen, Texts{"text:second"});
    EXPECT_EQ(search().text(), "");
}

TEST_F(ClipboardPickerViewTest, showsTheDigitsOfTheFirstNine)
{
    for (int count = 0; count < 12; ++count)
        copyTexts({"text " + std::to_string(count)});
    show();
    QStringList digits;
    for (int row = 0; row < 12; ++row)
        digits << list().model()->index(row, 0).data(trailingTextRole).toString();
    EXPECT_EQ(digits.join(','), "1,2,3,4,5,6,7,8,9,,,");
}

TEST_F(ClipboardPickerViewTest, choosesAnItemByAClick)
{
    copyTexts({"second", "first"});
    show();
    Q_EMIT list().clicked(list().model()->index(1, 0));
    EXPECT_EQ(chosen, Texts{"text:second"});
}

TEST_F(ClipboardPickerViewTest, deletesPinsAndDismisses)
{
    copyTexts({"third", "second", "first"});
    show();
    press(Qt::Key_Delete);
    EXPECT_EQ(titles(), (QStringList{"second", "third"}));
    press(Qt::Key_Down);
    press(Qt::Key_Up, Qt::MetaModifier);
    EXPECT_EQ(titles(), (QStringList{"third", "second"}));
    EXPECT_EQ(selected(), "third");
    EXPECT_TRUE(secondLine(0).startsWith("Pinned · "));
    press(Qt::Key_Escape);
    EXPECT_EQ(dismissals, 1);
}

TEST_F(ClipboardPickerViewTest, dismissesByEscapeAlsoWithAQuery)
{
    copyTexts({"text"});
    show();
    type("te");
    press(Qt::Key_Escape);
    EXPECT_EQ(dismissals, 1);
}

TEST_F(ClipboardPickerViewTest, goesThroughTheCategories)
{
    copyTexts({"text"});
    copyPicture();
    show();
    const auto buttons = view->findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 4);
    EXPECT_TRUE(buttons[0]->isChecked());
    press(Qt::Key_Right);
    EXPECT_TRUE(buttons[1]->isChecked());
    EXPECT_FALSE(buttons[0]->isChecked());
    EXPECT_EQ(titles(), QStringList{"text"});
    buttons[2]->click();
    EXPECT_EQ(titles(), QStringList{"Image"});
    EXPECT_EQ(QApplication::focusWidget(), &search());
}

TEST_F(ClipboardPickerViewTest, previewsWhileSpaceIsHeld)
{
    copyPicture();
    show();
    press(Qt::Key_Space, Qt::AltModifier, " ");
    EXPECT_TRUE(previewer.isPreviewing());
    press(Qt::Key_Space, Qt::AltModifier, " ", QEvent::KeyRelease, true);
    EXPECT_TRUE(previewer.isPreviewing()) << "the key repeats";
    press(Qt::Key_Space, Qt::AltModifier, " ", QEvent::KeyRelease);
    EXPECT_FALSE(previewer.isPreviewing());
    EXPECT_EQ(search().text(), "");
}

TEST_F(ClipboardPickerViewTest, keepsTheFocusInTheField)
{
    copyTexts({"text"});
    show();
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), &search());
    EXPECT_EQ(search().text(), "");
}

TEST_F(ClipboardPickerViewTest, followsTheHistory)
{
    copyTexts({"first"});
    show();
    press(Qt::Key_Down);
    copyTexts({"second"});
    EXPECT_EQ(titles(), (QStringList{"second", "first"}));
    EXPECT_EQ(selected(), "first");
    history.clear();
    EXPECT_EQ(titles(), QStringList{});
    EXPECT_FALSE(list().isVisible());
}

TEST_F(ClipboardPickerViewTest, saysWhatItemsAre)
{
    auto text = textItem("  two\n lines ");
    text.sourceBundleID = "org.editor";
    copy(text);
    copy(fileItem({"/home/user/a.txt"}));
    copy(fileItem({"/home/user/b.txt", "/c", "/d"}));
    copy(textItem("漢字🎛"));
    show();
    EXPECT_EQ(titles(), (QStringList{"漢字🎛", "b.txt and 2 more", "a.txt", "two lines"}));
    EXPECT_EQ(secondLine(3), "name of org.editor · 4 min. ago");
    EXPECT_EQ(secondLine(2), "4 min. ago · /home/user");
}

TEST_F(ClipboardPickerViewTest, asksForPicturesOfWhatIsInSight)
{
    for (int count = 0; count < 1'000; ++count)
        copyTexts({std::to_string(count)});
    show();
    view->grab();
    EXPECT_GE(asked.size(), 8U);
    EXPECT_LE(asked.size(), 20U);
}

TEST_F(ClipboardPickerViewTest, keepsItsSizeWhileItIsShown)
{
    copyTexts({"one", "two", "three", "four", "five"});
    show();
    const auto size = view->size();
    type("fi");
    view->adjustSize();
    EXPECT_EQ(view->size(), size);
    type("zz");
    QApplication::processEvents();
    EXPECT_EQ(titles(), QStringList{});
    view->adjustSize();
    EXPECT_EQ(view->size(), size);
}

TEST_F(ClipboardPickerViewTest, cutsOffNoTextInAnyLanguage)
{
    copyTexts({"text"});
    for (const auto* const language : {"en", "zh-Hans", "zh-Hant", "ja", "fr", "es", "de", "ko"})
        for (const auto brightness : {Brightness::light, Brightness::dark}) {
            show(language, brightness);
            EXPECT_EQ(textFaults(*view), Texts{}) << language;
        }
    const ScopedFont large(1.5);
    show();
    EXPECT_EQ(textFaults(*view), Texts{}) << "larger text";
}

} // namespace
} // namespace brindlex
