#include "clipboard/ClipboardSearchTexts.h"

#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

struct ClipboardSearchTextsTest : testing::Test {
    /// The indexes at which the query passes.
    std::vector<std::size_t> passing(const ClipboardItems& items, std::string_view query)
    {
        texts.follow(items);
        const auto tokens = clipboardSearchTokens(query, texts.folding());
        std::vector<std::size_t> indexes;
        for (std::size_t index = 0; index < items.size(); ++index)
            if (texts.pass(index, tokens))
                indexes.push_back(index);
        return indexes;
    }

    using Indexes = std::vector<std::size_t>;
    ClipboardSearchTexts texts{TextFolding()};
    SharedClipboardItem one = shared(textItem("one"));
    SharedClipboardItem two = shared(textItem("two"));
    SharedClipboardItem three = shared(textItem("three"));
};

TEST_F(ClipboardSearchTextsTest, belongToTheirItems)
{
    EXPECT_EQ(passing({one, two, three}, "t"), (Indexes{1, 2}));
    EXPECT_EQ(passing({one, two, three}, "one"), Indexes{0});
    EXPECT_EQ(passing({one, two, three}, ""), (Indexes{0, 1, 2}));
}

TEST_F(ClipboardSearchTextsTest, followTheList)
{
    EXPECT_EQ(passing({one, two}, "two"), Indexes{1});
    EXPECT_EQ(passing({two, one}, "two"), Indexes{0});
    EXPECT_EQ(passing({three, two, one, two}, "two"), (Indexes{1, 3}));
    EXPECT_EQ(passing({}, "two"), Indexes{});
    EXPECT_EQ(passing({one}, "two"), Indexes{});
}

TEST_F(ClipboardSearchTextsTest, takeAnotherRecordOfAnItemForAnother)
{
    EXPECT_EQ(passing({one}, "one"), Indexes{0});
    auto other = *one;
    other.text = "other";
    EXPECT_EQ(passing({shared(other)}, "one"), Indexes{});
}

TEST_F(ClipboardSearchTextsTest, areThoseOfTheListWhateverCameBefore)
{
    std::mt19937 random(10);
    ClipboardItems items;
    for (int round = 0; round < 500; ++round) {
        if (items.size() < 20 || random() % 2 == 0)
            items.insert(items.begin() + static_cast<std::ptrdiff_t>(random() % (items.size() + 1)),
                shared(textItem(std::to_string(random() % 100))));
        else
            items.erase(items.begin() + static_cast<std::ptrdiff_t>(random() % items.size()));
        if (random() % 4 == 0)
            std::shuffle(items.begin(), items.end(), random);
        Indexes expected;
        for (std::size_t index = 0; index < items.size(); ++index)
            if (items[index]->text->find('7') != std::string::npos)
                expected.push_back(index);
        ASSERT_EQ(passing(items, "7"), expected) << "round " << round;
    }
}

} // namespace
} // namespace brindlex
