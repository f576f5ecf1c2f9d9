#include "clipboard/ClipboardSearchText.h"

#include "foundation/Text.h"
#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Texts = std::vector<std::string>;

Texts tokenTexts(std::string_view query)
{
    Texts texts;
    for (const auto& token : clipboardSearchTokens(query, TextFolding()))
        texts.push_back(token.text);
    return texts;
}

/// Whether all tokens of the query pass for the text.
bool passes(const std::string& text, std::string_view query, const TextFolding& folding)
{
    const ClipboardSearchText searched(textItem(text), folding);
    for (const auto& token : clipboardSearchTokens(query, folding))
        if (!searched.passes(token))
            return false;
    return true;
}

bool passes(const std::string& text, std::string_view query)
{
    return passes(text, query, TextFolding());
}

TEST(ClipboardSearchText, hasTheWordsOfAQueryAsTokens)
{
    EXPECT_EQ(tokenTexts("foo bar"), (Texts{"foo", "bar"}));
    EXPECT_EQ(tokenTexts("  Éa\t\n\u00A0\u3000ß  "), (Texts{"ea", "ss"}));
    EXPECT_EQ(tokenTexts(""), Texts{});
    EXPECT_EQ(tokenTexts(" \t\u2028"), Texts{});
}

TEST(ClipboardSearchText, takesATokenApartIntoCharacters)
{
    const auto tokens = clipboardSearchTokens("a👩‍👩‍👧e\u0301", TextFolding());
    ASSERT_EQ(tokens.size(), 1U);
    EXPECT_EQ(tokens[0].characters, (Texts{"a", "👩‍👩‍👧", "e"}));
}

TEST(ClipboardSearchText, isMadeOfTextPathsAndSource)
{
    EXPECT_EQ(searchableText(textItem("hello")), "hello");
    auto item = fileItem({"/a b", "/c"});
    EXPECT_EQ(searchableText(item), "/a b /c");
    item.sourceBundleID = "org.example.Files";
    EXPECT_EQ(searchableText(item), "/a b /c org.example.Files");
    item.text = "text";
    EXPECT_EQ(searchableText(item), "text /a b /c org.example.Files");
}

TEST(ClipboardSearchText, isOnlyTheSourceOfAPicture)
{
    auto item = imageItem();
    EXPECT_EQ(searchableText(item), "");
    item.sourceBundleID = "org.example.Paint";
    EXPECT_EQ(searchableText(item), "org.example.Paint");
}

TEST(ClipboardSearchText, passesByASubsequence)
{
    EXPECT_TRUE(passes("a-b", "ab"));
    EXPECT_FALSE(passes("b-a", "ab"));
    EXPECT_FALSE(passes("a", "aa"));
    EXPECT_TRUE(passes("the quick brown fox", "tqbf"));
}

TEST(ClipboardSearchText, passesWithoutCaseAndDiacritics)
{
    EXPECT_TRUE(passes("ab", "ÀB"));
    EXPECT_TRUE(passes("ÀB", "ab"));
    EXPECT_TRUE(passes("Straße", "STRASSE"));
    EXPECT_TRUE(passes("cafe\u0301", "CAFÉ"));
}

TEST(ClipboardSearchText, passesByTokensInAnyOrder)
{
    EXPECT_TRUE(passes("bar at foo", "foo bar"));
    EXPECT_FALSE(passes("bar at fo", "foo bar"));
    EXPECT_TRUE(passes("anything", " "));
}

TEST(ClipboardSearchText, passesByWholeCharactersWhereOthersStandBetween)
{
    EXPECT_TRUE(passes("👩‍👩‍👧 and 👍", "👩‍👩‍👧👍"));
    // A part of a family is in it, though it is no character of it.
    EXPECT_TRUE(passes("👩‍👩‍👧", "👩"));
    EXPECT_FALSE(passes("👩‍👩‍👧 x", "👩x"));
    EXPECT_FALSE(passes("🇩🇪 x", "🇩x"));
    EXPECT_TRUE(passes("한국어 문서", "한문"));
    EXPECT_FALSE(passes("한국어", "하국"));
}

TEST(ClipboardSearchText, takesTheLettersOfTheLanguage)
{
    const TextFolding turkish("tr_TR.UTF-8");
    EXPECT_TRUE(passes("IRMAK", "ırmak", turkish));
    EXPECT_FALSE(passes("IRMAK", "irmak", turkish));
    EXPECT_TRUE(passes("İzmir", "izmir", turkish));
}

/// A search in its plainest form.
bool plainlyPasses(const ClipboardItem& item, std::string_view query, const TextFolding& folding)
{
    const auto text = folding.folded(searchableText(item));
    const auto inText = characters(text);
    for (const auto& token : tokenTexts(query)) {
        const auto inToken = characters(token);
        std::size_t matched = 0;
        for (std::size_t at = 0; at < inText.size() && matched < inToken.size(); ++at)
            if (inText[at] == inToken[matched])
                ++matched;
        const bool isContained = text.find(token) != std::string::npos;
        if (!isContained && matched < inToken.size())
            return false;
    }
    return true;
}

/// Text of pieces that have been hard to take apart somewhere.
std::string randomText(std::mt19937& random, std::size_t longest)
{
    static const Texts pieces{"a", "b", "A", "I", "i", "İ", "ı", "ß", "ẞ", "s", "S", "é", "e",
        "\u0301", "\u0307", "\u0323", "\u0345", "\u093F", "\u0941", "क", "\u094D", "ष", "ﬁ", "ǆ",
        "한", "하", "\u1112", "\u1161", "\u11AB", "👩", "\u200D", "👧", "👍", "🏽", "\uFE0F", "🇩",
        "🇪", "🇫", "1", "\u20E3", " ", "\t", "\r", "\n", "\r\n", "\u00A0", "\u3000", "\u2028",
        "\u200B", "漢", "か", "\u3099", "\u0600", "\u0E33", "Σ", "ς", "\xFF", "\xE6\xBC",
        "\xED\xA0", "\uFFFD", std::string(1, '\0')};
    std::string text;
    for (auto count = random() % (longest + 1); count > 0; --count)
        text += pieces[random() % pieces.size()];
    return text;
}

TEST(ClipboardSearchText, passesAsInItsPlainestForm)
{
    std::mt19937 random(9);
    const TextFolding folding;
    int passed = 0;
    for (int round = 0; round < 30'000; ++round) {
        auto item = textItem(randomText(random, round % 3 == 0 ? 4 : 16));
        if (random() % 4 == 0)
            item.fileURLStrings = {randomText(random, 3), randomText(random, 3)};
        if (random() % 4 == 0)
            item.sourceBundleID = randomText(random, 3);
        const auto query = randomText(random, 3);
        const ClipboardSearchText searched(item, folding);
        const auto tokens = clipboardSearchTokens(query, folding);
        const bool hasPassed = std::all_of(tokens.begin(), tokens.end(),
            [&](const auto& token) { return searched.passes(token); });
        ASSERT_EQ(hasPassed, plainlyPasses(item, query, folding))
            << "round " << round << ": " << query << " in " << searchableText(item);
        passed += hasPassed && !tokens.empty() ? 1 : 0;
    }
    EXPECT_GT(passed, 1000);
}

} // namespace
} // namespace brindlex
