#include "clipboard/ClipboardPickerSelectionState.h"

#include "clipboard/ClipboardSearchTexts.h"
#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

using Texts = std::vector<std::string>;

/// A list of three texts and a picture, and what a picker shows of it.
struct ClipboardPickerSelectionStateTest : testing::Test {
    ClipboardItems filtered() { return state.filteredItems(items, searchTexts); }

    /// The text of the selected item.
    std::string selected()
    {
        const auto item = state.selectedItem(filtered());
        return item ? item->text.value_or("a picture") : "nothing";
    }

    /// Removes the item from the list, as a key does.
    void remove(const SharedClipboardItem& item)
    {
        const auto before = filtered();
        std::erase(items, item);
        state.handleRemoval(item->id, before, filtered());
    }

    SharedClipboardItem first = shared(textItem("first"));
    SharedClipboardItem second = shared(textItem("second"));
    SharedClipboardItem third = shared(textItem("third"));
    SharedClipboardItem picture = shared(imageItem());
    ClipboardItems items{first, second, third, picture};
    ClipboardSearchTexts searchTexts{TextFolding()};
    ClipboardPickerSelectionState state;
};

TEST_F(ClipboardPickerSelectionStateTest, beginsWithEverythingAndNothingTyped)
{
    EXPECT_EQ(state.category, ClipboardCategory::all);
    EXPECT_EQ(state.query, "");
    EXPECT_TRUE(state.selectedItemIDsByCategory.empty());
    EXPECT_EQ(filtered(), items);
}

TEST_F(ClipboardPickerSelectionStateTest, showsTheCategoryInTheOrderOfTheHistory)
{
    state.category = ClipboardCategory::text;
    EXPECT_EQ(filtered(), (ClipboardItems{first, second, third}));
    state.category = ClipboardCategory::image;
    EXPECT_EQ(filtered(), ClipboardItems{picture});
    state.category = ClipboardCategory::file;
    EXPECT_EQ(filtered(), ClipboardItems{});
}

TEST_F(ClipboardPickerSelectionStateTest, showsFilesWithOthersThanPicturesAsFiles)
{
    const auto mixed = shared(fileItem({"a.png", "b.txt"}));
    const auto bare = shared(fileItem({"README"}));
    items = {mixed, bare};
    state.category = ClipboardCategory::file;
    EXPECT_EQ(filtered(), items);
    state.category = ClipboardCategory::image;
    EXPECT_EQ(filtered(), ClipboardItems{});
}

TEST_F(ClipboardPickerSelectionStateTest, showsWhatTheQueryFinds)
{
    state.query = "IR";
    EXPECT_EQ(filtered(), (ClipboardItems{first, third}));
    state.query = "ir th";
    EXPECT_EQ(filtered(), ClipboardItems{third});
    state.query = " \t ";
    EXPECT_EQ(filtered(), items);
    state.query = "nowhere";
    EXPECT_EQ(filtered(), ClipboardItems{});
}

TEST_F(ClipboardPickerSelectionStateTest, showsWhatIsInTheCategoryAndFoundByTheQuery)
{
    auto record = *picture;
    record.sourceBundleID = "org.example.Irfan";
    items.push_back(shared(record));
    state.query = "ir";
    state.category = ClipboardCategory::image;
    EXPECT_EQ(filtered(), ClipboardItems{items.back()});
}

TEST_F(ClipboardPickerSelectionStateTest, ranksNothingByHowWellItIsFound)
{
    const auto loose = shared(textItem("f-i-r-s-t"));
    items = {loose, first};
    state.query = "first";
    EXPECT_EQ(filtered(), items);
}

TEST_F(ClipboardPickerSelectionStateTest, hasNoSelectedItemInAnEmptyHistory)
{
    items.clear();
    EXPECT_EQ(selected(), "nothing");
    state.move(1, filtered());
    state.selectFirstIfNeeded(filtered());
    EXPECT_EQ(state, ClipboardPickerSelectionState{});
}

TEST_F(ClipboardPickerSelectionStateTest, selectsTheFirstItemUntilOneIsStored)
{
    const auto before = state;
    EXPECT_EQ(selected(), "first");
    EXPECT_EQ(state, before);
}

TEST_F(ClipboardPickerSelectionStateTest, keepsAStoredItemThatIsNotVisible)
{
    state.selectedItemIDsByCategory[ClipboardCategory::all] = second->id;
    state.query = "third";
    EXPECT_EQ(selected(), "third");
    state.query.clear();
    EXPECT_EQ(selected(), "second");
}

TEST_F(ClipboardPickerSelectionStateTest, storesTheFirstItemWhereTheStoredIsNotVisible)
{
    state.selectFirstIfNeeded(filtered());
    EXPECT_EQ(state.selectedItemIDsByCategory.at(ClipboardCategory::all), first->id);
    state.move(1, filtered());
    state.selectFirstIfNeeded(filtered());
    EXPECT_EQ(selected(), "second");
    state.query = "third";
    state.selectFirstIfNeeded(filtered());
    state.query.clear();
    EXPECT_EQ(selected(), "third");
    state.query = "nowhere";
    state.selectFirstIfNeeded(filtered());
    EXPECT_TRUE(state.selectedItemIDsByCategory.empty());
}

TEST_F(ClipboardPickerSelectionStateTest, restoresTheSelectionOfACategory)
{
    state.move(1, filtered());
    state.category = ClipboardCategory::image;
    state.selectFirstIfNeeded(filtered());
    EXPECT_EQ(selected(), "a picture");
    state.category = ClipboardCategory::all;
    state.selectFirstIfNeeded(filtered());
    EXPECT_EQ(selected(), "second");
}

TEST_F(ClipboardPickerSelectionStateTest, movesAndStopsAtTheEnds)
{
    state.move(-1, filtered());
    EXPECT_EQ(selected(), "first");
    state.move(1, filtered());
    EXPECT_EQ(selected(), "second");
    state.move(2, filtered());
    EXPECT_EQ(selected(), "a picture");
    state.move(1, filtered());
    EXPECT_EQ(selected(), "a picture");
    state.move(-2, filtered());
    EXPECT_EQ(selected(), "second");
    state.move(0, filtered());
    EXPECT_EQ(selected(), "second");
}

TEST_F(ClipboardPickerSelectionStateTest, movesAsFarAsThereIsSomethingHoweverFarItIsTold)
{
    state.move(1, filtered());
    state.move(std::numeric_limits<std::int64_t>::max(), filtered());
    EXPECT_EQ(selected(), "a picture");
    state.move(std::numeric_limits<std::int64_t>::min(), filtered());
    EXPECT_EQ(selected(), "first");
}

TEST_F(ClipboardPickerSelectionStateTest, movesFromTheFirstWhereTheStoredIsNotVisible)
{
    state.selectedItemIDsByCategory[ClipboardCategory::all] = Uuid::random();
    state.move(1, filtered());
    EXPECT_EQ(selected(), "second");
}

TEST_F(ClipboardPickerSelectionStateTest, goesOnWithWhatComesToThePlaceOfARemovedItem)
{
    state.move(1, filtered());
    remove(second);
    EXPECT_EQ(selected(), "third");
}

TEST_F(ClipboardPickerSelectionStateTest, goesOnWithTheNewLastItemAtTheEnd)
{
    state.move(3, filtered());
    remove(picture);
    EXPECT_EQ(selected(), "third");
}

TEST_F(ClipboardPickerSelectionStateTest, selectsNothingOnceTheOnlyItemHasGone)
{
    items = {first};
    state.selectFirstIfNeeded(filtered());
    remove(first);
    EXPECT_EQ(selected(), "nothing");
    EXPECT_TRUE(state.selectedItemIDsByCategory.empty());
}

TEST_F(ClipboardPickerSelectionStateTest, keepsTheSelectionWhenAnotherItemIsRemoved)
{
    state.move(1, filtered());
    remove(first);
    EXPECT_EQ(selected(), "second");
    remove(picture);
    EXPECT_EQ(selected(), "second");
}

TEST_F(ClipboardPickerSelectionStateTest, selectsTheFirstWhenNothingWasStoredAtARemoval)
{
    remove(first);
    EXPECT_EQ(state.selectedItemIDsByCategory.at(ClipboardCategory::all), second->id);
}

TEST_F(ClipboardPickerSelectionStateTest, selectsTheFirstWhenTheRemovedItemWasNotVisible)
{
    state.selectedItemIDsByCategory[ClipboardCategory::all] = picture->id;
    state.query = "ir";
    remove(picture);
    EXPECT_EQ(selected(), "first");
    EXPECT_EQ(state.selectedItemIDsByCategory.at(ClipboardCategory::all), first->id);
}

TEST_F(ClipboardPickerSelectionStateTest, changesTheCurrentCategoryOnly)
{
    state.move(1, filtered());
    state.category = ClipboardCategory::text;
    state.move(2, filtered());
    remove(third);
    EXPECT_EQ(selected(), "second");
    state.category = ClipboardCategory::all;
    EXPECT_EQ(selected(), "second");
    EXPECT_EQ(state.selectedItemIDsByCategory.size(), 2U);
}

} // namespace
} // namespace brindlex
