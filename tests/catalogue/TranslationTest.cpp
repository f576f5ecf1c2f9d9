#include "catalogue/Translation.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(Translation, isReadFromTextsByKey)
{
    const auto translation
        = parseTranslation(R"({"tab.general": "Allgemein", "tab.mouse": "Maus"})");

    ASSERT_TRUE(translation);
    EXPECT_EQ(*translation,
        (Translation{
            {"tab.general", {{{"other", "Allgemein"}}}}, {"tab.mouse", {{{"other", "Maus"}}}}}));
}

TEST(Translation, hasAWordingForEachPluralForm)
{
    const auto translation
        = parseTranslation(R"({"n": {"one": "%lld Eintrag", "other": "%lld Einträge"}})");

    ASSERT_TRUE(translation);
    const auto& wording = translation->at("n");
    EXPECT_EQ(wording.form("one"), "%lld Eintrag");
    EXPECT_EQ(wording.form("other"), "%lld Einträge");
    EXPECT_EQ(wording.form("few"), "%lld Einträge");
}

TEST(Translation, isNotReadFromAnythingElse)
{
    EXPECT_EQ(parseTranslation("[]").error(), "It is no object");
    for (const auto* value : {"1", "null", "[]", R"({"one": "x"})", R"({"other": 1})"})
        EXPECT_EQ(parseTranslation(std::string(R"({"key": )") + value + "}").error(),
            "\"key\" is neither a text nor an object of plural forms")
            << value;
    EXPECT_FALSE(parseTranslation("{"));
}

TEST(Translation, hasThePluralCategoriesOfItsLanguage)
{
    EXPECT_EQ(pluralCategory("de", 1), "one");
    EXPECT_EQ(pluralCategory("de", 0), "other");
    EXPECT_EQ(pluralCategory("fr", 0), "one");
    EXPECT_EQ(pluralCategory("es", 1'000'000), "many");
    EXPECT_EQ(pluralCategory("ja", 1), "other");
    EXPECT_EQ(pluralCategory("zh-Hant", 1), "other");
    EXPECT_EQ(pluralCategory("no language", 1), "other");
}

} // namespace
} // namespace brindlex
