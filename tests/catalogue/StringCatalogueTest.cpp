#include "catalogue/StringCatalogue.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(StringCatalogue, speaksEnglishWithoutATranslation)
{
    const StringCatalogue strings("de", {});

    EXPECT_EQ(strings.text<"tab.general">(), "General");
    EXPECT_EQ(strings.text<"logs.entriesCountFormat">(3, 5), "3 / 5 entries");
    EXPECT_EQ(strings.text<"about.versionLineFormat">("0.1.0"), "Version 0.1.0");
    EXPECT_EQ(strings.text<"about.versionLineFormat">(std::string("2")), "Version 2");
}

TEST(StringCatalogue, laysLaterTranslationsOverEarlierOnes)
{
    const StringCatalogue strings("de",
        {R"({"tab.general": "Allgemein", "tab.finder": "Finder"})", "",
            R"({"tab.finder": "Dateien", "no.such.key": "x"})"});

    EXPECT_EQ(strings.language(), "de");
    EXPECT_EQ(strings.text<"tab.general">(), "Allgemein");
    EXPECT_EQ(strings.text<"tab.finder">(), "Dateien");
    EXPECT_EQ(strings.text<"tab.mouse">(), "Mouse") << "A text without a translation";
}

TEST(StringCatalogue, choosesThePluralFormByTheLastNumber)
{
    const StringCatalogue strings("de",
        {R"({"logs.entriesCountFormat": {"one": "%lld/%lld Eintrag", "other": "%lld/%lld Einträge"}})"});

    EXPECT_EQ(strings.text<"logs.entriesCountFormat">(0, 1), "0/1 Eintrag");
    EXPECT_EQ(strings.text<"logs.entriesCountFormat">(1, 2), "1/2 Einträge");
}

template <FixedText key, typename... Arguments>
constexpr bool compiles = CatalogueKeyTaking<key, Arguments...>;

TEST(StringCatalogue, takesOnlyCallsThatFitTheText)
{
    static_assert(compiles<"tab.general">);
    static_assert(compiles<"logs.entriesCountFormat", int, std::size_t>);
    static_assert(compiles<"why.learnedFormat", int, std::string>);

    static_assert(!compiles<"tab.general", int>);
    static_assert(!compiles<"logs.entriesCountFormat", int>);
    static_assert(!compiles<"logs.entriesCountFormat", int, std::string>);
    static_assert(!compiles<"logs.entriesCountFormat", int, int, int>);
    static_assert(!compiles<"why.learnedFormat", std::string, int>);
    static_assert(!compiles<"tab.unknown">);
}

} // namespace
} // namespace brindlex
