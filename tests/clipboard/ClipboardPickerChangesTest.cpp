#include "clipboard/ClipboardPicker.h"

#include "clipboard/ClipboardPickerFixture.h"

namespace brindlex {
namespace {

struct ClipboardPickerChangesTest : OpenClipboardPicker { };

TEST_F(ClipboardPickerChangesTest, goesOnWithTheNextItemAfterADeletion)
{
    open();
    picker->move(1);
    picker->deleteSelection();
    EXPECT_EQ(visible(), (Texts{"first", "third"}));
    EXPECT_EQ(selected(), "third");
    picker->deleteSelection();
    EXPECT_EQ(selected(), "first");
    picker->deleteSelection();
    EXPECT_EQ(selected(), "nothing");
    EXPECT_EQ(textsOf(history.items().value()), Texts{});
    EXPECT_EQ(contents, 4);
}

TEST_F(ClipboardPickerChangesTest, deletesFromWhatTheQueryFinds)
{
    open({"one", "two", "tone", "three"});
    picker->setQuery("o");
    picker->move(1);
    EXPECT_EQ(visible(), (Texts{"one", "two", "tone"}));
    picker->deleteSelection();
    EXPECT_EQ(visible(), (Texts{"one", "tone"}));
    EXPECT_EQ(selected(), "tone");
    picker->setQuery("");
    EXPECT_EQ(visible(), (Texts{"one", "tone", "three"}));
    EXPECT_EQ(selected(), "tone");
}

TEST_F(ClipboardPickerChangesTest, deletesAnItemThatIsNotSelectedOrNotVisible)
{
    open();
    picker->move(1);
    picker->deleteItem(idOf("first"));
    EXPECT_EQ(selected(), "second");
    picker->setQuery("sec");
    picker->deleteItem(idOf("third"));
    EXPECT_EQ(selected(), "second");
    EXPECT_EQ(textsOf(history.items().value()), Texts{"second"});
    const auto before = contents;
    picker->deleteItem(Uuid::random());
    EXPECT_EQ(contents, before);
}

TEST_F(ClipboardPickerChangesTest, selectsTheFirstOnceAnotherHasDeletedTheSelectedItem)
{
    open();
    picker->move(1);
    history.deleteItem(idOf("second"));
    EXPECT_EQ(selected(), "first");
    // Nothing is left of the deletion here before.
    picker->move(1);
    picker->deleteSelection();
    history.deleteItem(idOf("first"));
    EXPECT_EQ(selected(), "nothing");
}

TEST_F(ClipboardPickerChangesTest, pinsAndUnpinsTheSelectedItem)
{
    open();
    picker->move(2);
    picker->togglePinSelection();
    EXPECT_EQ(visible(), (Texts{"third", "first", "second"}));
    EXPECT_EQ(selected(), "third");
    EXPECT_EQ(content().selected->pinnedAt, clipboardDay);
    EXPECT_EQ(contents, 2);
    picker->togglePinSelection();
    EXPECT_EQ(visible(), (Texts{"first", "second", "third"}));
    EXPECT_EQ(selected(), "third");
}

TEST_F(ClipboardPickerChangesTest, unpinsAlsoWhatIsNotPinned)
{
    open();
    picker->unpinSelection();
    EXPECT_EQ(visible(), (Texts{"first", "second", "third"}));
    EXPECT_EQ(selected(), "first");
    picker->move(1);
    picker->togglePinSelection();
    picker->unpinSelection();
    EXPECT_EQ(visible(), (Texts{"first", "second", "third"}));
    EXPECT_EQ(selected(), "second");
    EXPECT_EQ(content().selected->pinnedAt, std::nullopt);
    save();
    EXPECT_EQ(savedTexts(), visible());
}

TEST_F(ClipboardPickerChangesTest, selectsTheFirstOfAListThatChangesBeforeAnythingWasSelected)
{
    open();
    copy(textItem("new"));
    EXPECT_EQ(visible(), (Texts{"new", "first", "second", "third"}));
    EXPECT_EQ(selected(), "new");
}

TEST_F(ClipboardPickerChangesTest, keepsTheSelectionWhenSomethingIsCopiedMeanwhile)
{
    open();
    picker->move(1);
    copy(textItem("new"));
    EXPECT_EQ(selected(), "second");
    history.touch("text:third");
    EXPECT_EQ(selected(), "second");
    picker->setQuery("sec");
    copy(textItem("not found"));
    EXPECT_EQ(visible(), Texts{"second"});
    EXPECT_EQ(contents, 5);
}

TEST_F(ClipboardPickerChangesTest, selectsTheFirstOfWhatAClearedHistoryGetsNext)
{
    open();
    picker->move(2);
    history.clear();
    EXPECT_EQ(selected(), "nothing");
    copyTexts({"a", "b"});
    EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardPickerChangesTest, showsTheNewRecordOfTheSelectedItem)
{
    open();
    picker->move(1);
    clock.advance(100);
    history.touch("text:second");
    EXPECT_EQ(content().selected->createdAt, clipboardDay + 100);
    EXPECT_EQ(content().selected, content().items[0]);
}

TEST_F(ClipboardPickerChangesTest, showsAVeryLongHistory)
{
    setLimit(20'000);
    std::string text = "[";
    for (int number = 0; number < 20'000; ++number)
        text += R"({"id":")" + Uuid::random().text() + R"(","kind":"text","createdAt":)"
            + std::to_string(20'000 - number) + R"(,"fingerprint":"","text":"item )"
            + std::to_string(number) + "\"}" + (number < 19'999 ? "," : "]");
    write(index, text);
    ClipboardHistoryStore large({mainThread, clock, queue, defaults}, directory);
    ClipboardQuickLookPreviewer ofLarge(previewing, large);
    ClipboardPicker wide({large, searchTexts, ofLarge}, {});
    const auto& wideContent = wide.content();
    EXPECT_EQ(wideContent.value().items.size(), 20'000U);
    wide.move(19'999);
    EXPECT_EQ(wideContent.value().selected->text, "item 19999");
    wide.setQuery("19998");
    EXPECT_EQ(textsOf(wideContent.value().items), Texts{"item 19998"});
    wide.deleteSelection();
    wide.setQuery("");
    EXPECT_EQ(wideContent.value().items.size(), 19'999U);
    EXPECT_EQ(wideContent.value().selected, wideContent.value().items[0]);
}

} // namespace
} // namespace brindlex
