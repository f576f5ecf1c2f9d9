#include "catalogue/CatalogueLanguage.h"

#include <gtest/gtest.h>

#include <utility>

namespace brindlex {
namespace {

TEST(CatalogueLanguage, isNamedInManyWays)
{
    const std::pair<const char*, const char*> rows[]{
        {"en", "en"},
        {"en_US.UTF-8", "en"},
        {"de", "de"},
        {"de_AT.UTF-8@euro", "de"},
        {"DE-ch", "de"},
        {"fr_CA", "fr"},
        {"es_419", "es"},
        {"ja_JP.eucJP", "ja"},
        {"ko-KR", "ko"},
        {"zh", "zh-Hans"},
        {"zh_CN", "zh-Hans"},
        {"zh_SG.UTF-8", "zh-Hans"},
        {"zh-Hans", "zh-Hans"},
        {"zh-Hans-HK", "zh-Hans"},
        {"zh_TW", "zh-Hant"},
        {"zh_HK.UTF-8", "zh-Hant"},
        {"zh_MO", "zh-Hant"},
        {"zh-Hant", "zh-Hant"},
        {"zh-Hant-CN", "zh-Hant"},
        {"zh_TW@stroke", "zh-Hant"},
    };
    for (const auto& [name, language] : rows)
        EXPECT_EQ(catalogueLanguage({name}), language) << name;
}

TEST(CatalogueLanguage, isTheFirstThatTheCatalogueSpeaks)
{
    EXPECT_EQ(catalogueLanguage({"pt_BR", "ko", "de"}), "ko");
    EXPECT_EQ(catalogueLanguage({"pt", "deu"}), "en") << "Only codes of two letters are used.";
}

TEST(CatalogueLanguage, isEnglishWithoutAnyThatIsSpoken)
{
    EXPECT_EQ(catalogueLanguage({}), "en");
    for (const auto* name : {"", "C", "POSIX", "C.UTF-8", "-", "zhh", ".UTF-8", "\xFF\xFE"})
        EXPECT_EQ(catalogueLanguage({name}), "en") << name;
}

} // namespace
} // namespace brindlex
