#include "catalogue/EmbeddedTranslations.h"

#include "catalogue/CatalogueFormat.h"
#include "catalogue/CatalogueTable.h"
#include "catalogue/SameAsInEnglish.h"
#include "catalogue/StringCatalogue.h"
#include "catalogue/Translation.h"
#include "foundation/Text.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

/// The kinds and numbers of a text's places, whatever their order.
std::map<std::size_t, CataloguePlaceholder> placesOf(std::string_view text)
{
    std::map<std::size_t, CataloguePlaceholder> places;
    std::size_t begin = 0;
    while (const auto slot = nextCatalogueSlot(text, begin)) {
        places.emplace(slot->position.value_or(places.size()), slot->kind);
        begin = slot->begin + slot->length;
    }
    return places;
}

Translation translationOf(std::string_view text)
{
    const auto translation = parseTranslation(text);
    EXPECT_TRUE(translation);
    return translation ? *translation : Translation{};
}

std::set<std::string> keysOf(const Translation& translation)
{
    std::set<std::string> keys;
    for (const auto& [key, wording] : translation)
        keys.insert(key);
    return keys;
}

void expectWordingsFit(const Translation& translation, std::string_view language)
{
    for (const auto& [key, wording] : translation) {
        const auto row = catalogueIndex(key);
        ASSERT_LT(row, catalogueTable.size()) << language << " has an unknown " << key;
        for (const auto& [category, form] : wording.forms) {
            EXPECT_EQ(placesOf(form), placesOf(catalogueTable[row].defaultValue))
                << language << " " << key << ": " << form;
            EXPECT_FALSE(form.empty()) << language << " " << key;
            EXPECT_EQ(trimmed(form), form) << language << " " << key;
        }
    }
}

class TranslationInto : public testing::TestWithParam<std::string_view> { };
INSTANTIATE_TEST_SUITE_P(EmbeddedTranslations, TranslationInto,
    testing::Values("zh-Hans", "zh-Hant", "ja", "fr", "es", "de", "ko"));

TEST_P(TranslationInto, hasEveryTextAndNoOther)
{
    std::set<std::string> keys;
    for (const auto& row : catalogueTable)
        keys.emplace(row.key);

    EXPECT_EQ(keysOf(translationOf(embeddedTranslation(GetParam()))), keys);
}

TEST_P(TranslationInto, keepsThePlacesOfTheTexts)
{
    expectWordingsFit(translationOf(embeddedTranslation(GetParam())), GetParam());
}

TEST_P(TranslationInto, isEnglishOnlyWhereTheLanguageUsesThatWord)
{
    const auto& same = sameAsInEnglish.at(GetParam());
    for (const auto& [key, wording] : translationOf(embeddedTranslation(GetParam())))
        EXPECT_EQ(wording.form("other") == catalogueTable[catalogueIndex(key)].defaultValue,
            same.contains(key))
            << key << ": " << wording.form("other");
}

TEST_P(TranslationInto, hasThePunctuationOfItsScript)
{
    if (GetParam() != "ja" && !GetParam().starts_with("zh"))
        return;
    for (const auto& [key, wording] : translationOf(embeddedTranslation(GetParam()))) {
        const auto text = scalars(wording.form("other"));
        for (std::size_t at = 1; at < text.size(); ++at)
            EXPECT_FALSE(text[at - 1] > 0x2E80
                && std::u32string_view(U",;:?!()").find(text[at]) != std::u32string_view::npos)
                << key << ": " << wording.form("other");
    }
}

TEST(EmbeddedTranslations, areThereForAllLanguagesButEnglish)
{
    for (const auto language : catalogueLanguages)
        EXPECT_EQ(embeddedTranslation(language).empty(), language == "en") << language;
    EXPECT_TRUE(embeddedTranslation("pt").empty());
    EXPECT_TRUE(embeddedSystemWordings("pt").empty());
}

TEST(EmbeddedTranslations, replaceTheSameTextsInEveryLanguage)
{
    const auto keys = keysOf(translationOf(embeddedSystemWordings("en")));
    for (const auto language : catalogueLanguages) {
        const auto wordings = translationOf(embeddedSystemWordings(language));
        EXPECT_EQ(keysOf(wordings), keys) << language;
        expectWordingsFit(wordings, language);
    }
}

TEST(EmbeddedTranslations, areReadByTheCatalogue)
{
    EXPECT_EQ(StringCatalogue("de").text<"menubar.quitApp">(), "Brindlex beenden");
    EXPECT_EQ(StringCatalogue("de").text<"logs.entriesCountFormat">(1, 1), "1 / 1 Eintrag");
    EXPECT_EQ(StringCatalogue("zh-Hant").text<"tab.mouse">(), "滑鼠");
    EXPECT_EQ(StringCatalogue("en").text<"menubar.quitApp">(), "Quit Brindlex");
    EXPECT_EQ(StringCatalogue("pt").text<"menubar.quitApp">(), "Quit Brindlex");
}

TEST(EmbeddedTranslations, speakOfNothingThatOnlyAMacHas)
{
    const std::vector<std::string_view> words{"Finder", "Dock", "Mac", "Trackpad",
        "System Settings", "Systemeinstellungen", "Réglages Système", "Ajustes del Sistema", "访达",
        "程序坞", "妙控", "巧控", "“系统设置”", "「系統設定」", "「システム設定」", "‘시스템 설정’",
        "トラックパッド"};
    for (const auto language : catalogueLanguages) {
        const StringCatalogue strings{std::string(language)};
        for (std::size_t row = 0; row < catalogueTable.size(); ++row) {
            const auto text = strings.text(row, {});
            for (const auto word : words)
                EXPECT_EQ(text.find(word), std::string::npos) << language << ": " << text;
        }
    }
}

} // namespace
} // namespace brindlex
