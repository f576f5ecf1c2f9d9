#include "clipboard/ClipboardItems.h"

#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace brindlex {
namespace {

/// The order in its plainest form.
bool plainlyStandsBefore(const ClipboardItem& a, const ClipboardItem& b)
{
    if (a.pinnedAt && b.pinnedAt && *a.pinnedAt != *b.pinnedAt)
        return *a.pinnedAt > *b.pinnedAt;
    if (a.pinnedAt && !b.pinnedAt)
        return true;
    if (!a.pinnedAt && b.pinnedAt)
        return false;
    if (a.createdAt != b.createdAt)
        return a.createdAt > b.createdAt;
    return a.id.text() < b.id.text();
}

void plainlySort(ClipboardItems& items)
{
    std::stable_sort(items.begin(), items.end(),
        [](const auto& a, const auto& b) { return plainlyStandsBefore(*a, *b); });
}

ClipboardItem withId(ClipboardItem item, const char* text)
{
    item.id = *Uuid::fromText(text);
    return item;
}

TEST(ClipboardItems, standTheLaterCopiedFirst)
{
    const auto early = textItem("early", 1);
    const auto late = textItem("late", 1.001);
    EXPECT_TRUE(standsBefore(late, early));
    EXPECT_FALSE(standsBefore(early, late));
}

TEST(ClipboardItems, standPinnedBeforeUnpinned)
{
    const auto old = pinned(textItem("old", -1000), -1000);
    const auto recent = textItem("recent", 1000);
    EXPECT_TRUE(standsBefore(old, recent));
    EXPECT_FALSE(standsBefore(recent, old));
}

TEST(ClipboardItems, standTheLaterPinnedFirstWheneverItWasCopied)
{
    const auto pinnedEarly = pinned(textItem("copied late", 10), 1);
    const auto pinnedLate = pinned(textItem("copied early", 0), 2);
    EXPECT_TRUE(standsBefore(pinnedLate, pinnedEarly));
    EXPECT_FALSE(standsBefore(pinnedEarly, pinnedLate));
}

TEST(ClipboardItems, standByTheirCopiesWherePinnedAtOneTime)
{
    const auto copiedEarly = pinned(textItem("early", 0), 5);
    const auto copiedLate = pinned(textItem("late", 1), 5);
    EXPECT_TRUE(standsBefore(copiedLate, copiedEarly));
    EXPECT_FALSE(standsBefore(copiedEarly, copiedLate));
}

TEST(ClipboardItems, standByTheTextOfTheirIdentifiersWhereCopiedAtOneTime)
{
    const auto low = withId(textItem("low"), "0FFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF");
    const auto middle = withId(textItem("middle"), "9A000000-0000-0000-0000-000000000000");
    const auto high = withId(textItem("high"), "A9000000-0000-0000-0000-000000000000");
    EXPECT_TRUE(standsBefore(low, middle));
    EXPECT_TRUE(standsBefore(middle, high));
    EXPECT_FALSE(standsBefore(high, low));
}

TEST(ClipboardItems, standNeitherBeforeTheOtherWithOneIdentifier)
{
    const auto one = textItem("one");
    auto other = textItem("other");
    other.id = one.id;
    EXPECT_FALSE(standsBefore(one, other));
    EXPECT_FALSE(standsBefore(other, one));
}

TEST(ClipboardItems, standAsInTheirPlainestOrder)
{
    std::mt19937 random(1);
    for (int round = 0; round < 20'000; ++round) {
        const auto a = randomItem(random);
        const auto b = randomItem(random);
        ASSERT_EQ(standsBefore(a, b), plainlyStandsBefore(a, b)) << "round " << round;
    }
}

/// The dates of an item may be anything that the field can hold.
void makeDatesStrange(ClipboardItem& item, std::mt19937& random)
{
    constexpr auto infinite = std::numeric_limits<double>::infinity();
    constexpr auto noNumber = std::numeric_limits<double>::quiet_NaN();
    constexpr std::array strange{infinite, -infinite, noNumber, -noNumber, 0.0, -0.0, 1e300};
    if (random() % 2 == 0)
        item.createdAt = Date{strange[random() % strange.size()]};
    if (item.pinnedAt)
        item.pinnedAt = Date{strange[random() % strange.size()]};
}

TEST(ClipboardItems, haveAStrictWeakOrderWhateverTheirDates)
{
    std::mt19937 random(2);
    const auto equal = [](const ClipboardItem& one, const ClipboardItem& other) {
        return !standsBefore(one, other) && !standsBefore(other, one);
    };
    for (int round = 0; round < 20'000; ++round) {
        std::array<ClipboardItem, 3> items{
            randomItem(random), randomItem(random), randomItem(random)};
        for (auto& item : items)
            makeDatesStrange(item, random);
        const auto& [a, b, c] = items;
        ASSERT_FALSE(standsBefore(a, a));
        ASSERT_FALSE(standsBefore(a, b) && standsBefore(b, a));
        if (standsBefore(a, b) && standsBefore(b, c)) {
            ASSERT_TRUE(standsBefore(a, c));
        }
        if (equal(a, b) && equal(b, c)) {
            ASSERT_TRUE(equal(a, c));
        }
    }
}

TEST(ClipboardItems, sortAlikeFromEveryPermutation)
{
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        auto items = randomItems(random, random() % 40);
        // Items that are equal in the order keep the one that they came in.
        for (std::size_t number = 0; number < items.size(); ++number) {
            auto item = *items[number];
            item.id.bytes[0] = static_cast<std::uint8_t>(number);
            items[number] = shared(item);
        }
        auto permuted = items;
        std::shuffle(permuted.begin(), permuted.end(), random);
        sortForDisplay(items);
        sortForDisplay(permuted);
        ASSERT_EQ(items, permuted) << "round " << round;
    }
}

TEST(ClipboardItems, sortEqualOnesInTheOrderTheyCameIn)
{
    const auto first = textItem("first");
    auto second = first;
    second.text = "second";
    ClipboardItems items{shared(first), shared(textItem("later", 1)), shared(second)};
    sortForDisplay(items);
    EXPECT_EQ(textsOf(items), (std::vector<std::string>{"later", "first", "second"}));
}

TEST(ClipboardItems, takeANewItemAsASortWould)
{
    std::mt19937 random(4);
    for (int round = 0; round < 2000; ++round) {
        auto items = randomItems(random, random() % 30);
        plainlySort(items);
        const auto item = shared(randomItem(random));
        auto expected = items;
        expected.insert(expected.begin(), item);
        plainlySort(expected);

        insertInOrder(items, item);

        ASSERT_EQ(items, expected) << "round " << round;
    }
}

TEST(ClipboardItems, takeAChangedItemAsASortWould)
{
    std::mt19937 random(5);
    for (int round = 0; round < 2000; ++round) {
        auto items = randomItems(random, 1 + random() % 30);
        plainlySort(items);
        const auto index = random() % items.size();
        const auto item = shared(randomItem(random));
        auto expected = items;
        expected[index] = item;
        plainlySort(expected);

        replaceInOrder(items, index, item);

        ASSERT_EQ(items, expected) << "round " << round;
    }
}

} // namespace
} // namespace brindlex
