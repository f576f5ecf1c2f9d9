#include "clipboard/ClipboardPicker.h"

#include "clipboard/ClipboardPickerFixture.h"

#include <limits>

namespace brindlex {
namespace {

struct ClipboardPickerTest : OpenClipboardPicker { };

TEST_F(ClipboardPickerTest, beginsWithAllOfTheHistoryAndItsFirstItem)
{
    open();
    EXPECT_EQ(content(),
        (ClipboardPicker::Content{
            .items = history.items().value(), .selected = history.items().value()[0]}));
}

TEST_F(ClipboardPickerTest, showsAnEmptyHistoryOfWhichNothingComes)
{
    openPicker();
    EXPECT_EQ(content(), ClipboardPicker::Content{});
    picker->move(1);
    picker->commit();
    picker->commitItem(0);
    picker->deleteSelection();
    picker->togglePinSelection();
    picker->unpinSelection();
    picker->preview();
    EXPECT_EQ(content(), ClipboardPicker::Content{});
    EXPECT_EQ(chosen, Texts{});
    EXPECT_EQ(previewing.timesShown, 0);
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(ClipboardPickerTest, movesTheSelectionAndStopsAtTheEnds)
{
    open();
    picker->move(1);
    EXPECT_EQ(selected(), "second");
    picker->move(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(selected(), "third");
    EXPECT_EQ(contents, 2);
    picker->move(1);
    EXPECT_EQ(selected(), "third");
    picker->move(-2);
    picker->move(-1);
    EXPECT_EQ(selected(), "first");
    EXPECT_EQ(contents, 3);
}

TEST_F(ClipboardPickerTest, showsWhatTheQueryFindsAndSelectsItsFirst)
{
    open();
    picker->move(1);
    picker->setQuery("IR");
    EXPECT_EQ(visible(), (Texts{"first", "third"}));
    EXPECT_EQ(selected(), "first");
    EXPECT_EQ(content().query, "IR");
    picker->setQuery("thi");
    EXPECT_EQ(selected(), "third");
    picker->setQuery("");
    EXPECT_EQ(visible(), (Texts{"first", "second", "third"}));
    EXPECT_EQ(selected(), "third");
    EXPECT_EQ(contents, 4);
}

TEST_F(ClipboardPickerTest, keepsTheSelectionThatTheQueryFinds)
{
    open();
    picker->move(2);
    picker->setQuery("ir");
    EXPECT_EQ(selected(), "third");
}

TEST_F(ClipboardPickerTest, selectsNothingWhereTheQueryFindsNothing)
{
    open();
    picker->setQuery("nowhere");
    EXPECT_EQ(visible(), Texts{});
    EXPECT_EQ(selected(), "nothing");
    picker->commit();
    picker->deleteSelection();
    EXPECT_EQ(chosen, Texts{});
    EXPECT_EQ(history.items().value().size(), 3U);
    picker->setQuery("");
    EXPECT_EQ(selected(), "first");
}

TEST_F(ClipboardPickerTest, publishesNothingForWhatIsThereAlready)
{
    open();
    picker->setQuery("");
    picker->setCategory(ClipboardCategory::all);
    picker->moveCategory(-1);
    picker->move(0);
    picker->move(-1);
    EXPECT_EQ(contents, 0);
}

TEST_F(ClipboardPickerTest, movesAlongTheCategoriesAndStopsAtTheEnds)
{
    open({"text"});
    copy(fileItem({"/a.txt"}));
    copyPicture();
    std::vector<ClipboardCategory> categories;
    for (const int delta : {-1, 1, 1, 1, 1, -1, 0, -2, 9, -9}) {
        picker->moveCategory(delta);
        categories.push_back(content().category);
    }
    using enum ClipboardCategory;
    EXPECT_EQ(
        categories, (std::vector{all, text, image, file, file, image, image, all, file, all}));
    picker->moveCategory(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(content().category, file);
    picker->moveCategory(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(content().category, all);
}

TEST_F(ClipboardPickerTest, restoresTheSelectionOfACategory)
{
    open();
    copyPicture();
    picker->move(2);
    EXPECT_EQ(selected(), "second");
    picker->setCategory(ClipboardCategory::image);
    EXPECT_EQ(visible().size(), 1U);
    EXPECT_EQ(content().selected->kind, ClipboardItemKind::image);
    picker->setCategory(ClipboardCategory::file);
    EXPECT_EQ(selected(), "nothing");
    picker->setCategory(ClipboardCategory::all);
    EXPECT_EQ(selected(), "second");
}

TEST_F(ClipboardPickerTest, commitsTheSelectedItem)
{
    open();
    picker->move(1);
    picker->commit();
    EXPECT_EQ(chosen, Texts{"text:second"});
}

TEST_F(ClipboardPickerTest, commitsTheItemAtAPlaceOfTheVisibleList)
{
    open();
    picker->setQuery("ir");
    picker->commitItem(1);
    picker->commitItem(2);
    picker->commitItem(std::numeric_limits<std::size_t>::max());
    EXPECT_EQ(chosen, Texts{"text:third"});
}

TEST_F(ClipboardPickerTest, previewsTheSelectedItemWhileSpaceIsHeld)
{
    const auto picture = copyPicture();
    openPicker();
    EXPECT_TRUE(picker->handleKey({virtualKey::space, KeyPhase::press, ModifierSet::option}));
    EXPECT_EQ(previewing.shown, Files{blobs / *picture.imageBlobName});
    EXPECT_FALSE(picker->handleKey({virtualKey::option, KeyPhase::release, {}}));
    EXPECT_TRUE(picker->handleKey({virtualKey::space, KeyPhase::release, {}}));
    EXPECT_EQ(previewing.shown, Files{});
    EXPECT_FALSE(picker->handleKey({virtualKey::space, KeyPhase::release, {}}));
}

TEST_F(ClipboardPickerTest, dismissesWhenItIsCancelled)
{
    open();
    picker->cancel();
    EXPECT_EQ(dismissals, 1);
    EXPECT_EQ(chosen, Texts{});
}

TEST_F(ClipboardPickerTest, carriesOutWhatAKeyAsksFor)
{
    open();
    EXPECT_TRUE(picker->handleKey({virtualKey::downArrow, KeyPhase::repeat, {}}));
    EXPECT_EQ(selected(), "second");
    EXPECT_TRUE(picker->handleKey({virtualKey::upArrow, KeyPhase::press, ModifierSet::command}));
    EXPECT_EQ(visible(), (Texts{"second", "first", "third"}));
    EXPECT_TRUE(picker->handleKey({virtualKey::downArrow, KeyPhase::press, ModifierSet::command}));
    EXPECT_EQ(visible(), (Texts{"first", "second", "third"}));
    EXPECT_TRUE(picker->handleKey({virtualKey::rightArrow, KeyPhase::press, {}}));
    EXPECT_EQ(content().category, ClipboardCategory::text);
    EXPECT_TRUE(picker->handleKey({virtualKey::space, KeyPhase::press, ModifierSet::option}));
    EXPECT_TRUE(picker->handleKey({virtualKey::three, KeyPhase::press, ModifierSet::command}));
    EXPECT_TRUE(picker->handleKey({virtualKey::returnKey, KeyPhase::press, {}}));
    EXPECT_EQ(chosen, (Texts{"text:third", "text:first"}));
    EXPECT_TRUE(picker->handleKey({virtualKey::escape, KeyPhase::press, {}}));
    EXPECT_EQ(dismissals, 1);
    EXPECT_FALSE(picker->handleKey({virtualKey::a, KeyPhase::press, {}}));
    EXPECT_FALSE(picker->handleKey({virtualKey::space, KeyPhase::press, {}}));
}

TEST_F(ClipboardPickerTest, deletesByAKeyWhatTheQueryAllows)
{
    open();
    EXPECT_TRUE(picker->handleKey({virtualKey::deleteKey, KeyPhase::press, {}}));
    EXPECT_EQ(visible(), (Texts{"second", "third"}));
    picker->setQuery("t");
    EXPECT_FALSE(picker->handleKey({virtualKey::deleteKey, KeyPhase::press, {}}));
    EXPECT_EQ(visible(), Texts{"third"});
    EXPECT_TRUE(
        picker->handleKey({virtualKey::forwardDelete, KeyPhase::press, ModifierSet::command}));
    EXPECT_EQ(visible(), Texts{});
    EXPECT_EQ(textsOf(history.items().value()), Texts{"second"});
}

TEST_F(ClipboardPickerTest, mayGoInsideItsOutcomes)
{
    copyTexts({"text"});
    std::unique_ptr<ClipboardPicker> mortal;
    mortal = std::make_unique<ClipboardPicker>(parts,
        ClipboardPicker::Outcomes{
            .onSelect =
                [&](const SharedClipboardItem& item) {
                    mortal.reset();
                    chosen.push_back(item->fingerprint);
                },
        });
    EXPECT_TRUE(mortal->handleKey({virtualKey::returnKey, KeyPhase::press, {}}));
    EXPECT_EQ(mortal, nullptr);
    EXPECT_EQ(chosen, Texts{"text:text"});
}

TEST_F(ClipboardPickerTest, showsNothingOnceItHasEnded)
{
    open();
    picker->setQuery("ir");
    picker->end();
    EXPECT_EQ(content(), ClipboardPicker::Content{});
    copy(textItem("new"));
    picker->setQuery("new");
    picker->setCategory(ClipboardCategory::text);
    EXPECT_EQ(content(), ClipboardPicker::Content{});
    picker->commit();
    picker->cancel();
    EXPECT_EQ(chosen, Texts{});
    EXPECT_EQ(dismissals, 0);
}

TEST_F(ClipboardPickerTest, findsTextsOfAnyLanguage)
{
    open({"ÀBC", "straße", "日本語", "e\u0301tude", "👩‍👩‍👧 family"});
    const auto found = [&](const std::string& query) {
        picker->setQuery(query);
        return visible();
    };
    EXPECT_EQ(found("ab"), Texts{"ÀBC"});
    EXPECT_EQ(found("STRASSE"), Texts{"straße"});
    EXPECT_EQ(found("本"), Texts{"日本語"});
    EXPECT_EQ(found("étude"), Texts{"e\u0301tude"});
    EXPECT_EQ(found("👩‍👩‍👧"), Texts{"👩‍👩‍👧 family"});
    EXPECT_EQ(found("\xFF\xFE"), Texts{});
}

} // namespace
} // namespace brindlex
