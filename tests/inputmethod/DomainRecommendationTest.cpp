#include "inputmethod/DomainRecommendation.h"

#include "inputmethod/NormalizedDomain.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

using SiteNames = std::vector<std::string_view>;

SiteNames suggested(std::string_view typed, const std::vector<DomainInputMethodRule>& rules = {})
{
    SiteNames names;
    for (const auto& site : suggestedDomains(typed, rules))
        names.push_back(site.displayName);
    return names;
}

TEST(DomainRecommendation, areSixteenWebsitesInTheirOrder)
{
    SiteNames names;
    for (const auto& site : domainRecommendations()) {
        names.push_back(site.displayName);
        EXPECT_EQ(normalizedDomain(site.domainSuffix), site.domainSuffix);
    }
    EXPECT_EQ(names,
        (SiteNames{"Baidu", "Google", "GitHub", "Stack Overflow", "ChatGPT", "OpenAI", "YouTube",
            "Bilibili", "Zhihu", "Xiaohongshu", "Weibo", "WeChat Public Platform", "Notion",
            "Gmail", "Google Docs", "Microsoft 365"}));
}

TEST(DomainRecommendation, areNotSuggestedBeforeTheSecondCharacter)
{
    EXPECT_EQ(suggested(""), SiteNames{});
    EXPECT_EQ(suggested("b"), SiteNames{}) << "Although it would match";
    EXPECT_EQ(suggested("  b  "), SiteNames{});
    EXPECT_EQ(suggested("百"), SiteNames{}) << "One character of three bytes";
}

TEST(DomainRecommendation, areSuggestedForAPartOfTheirDomain)
{
    EXPECT_EQ(suggested("bi"), SiteNames{"Bilibili"});
    EXPECT_EQ(suggested(" GOOGLE "), (SiteNames{"Google", "Gmail", "Google Docs"}));
    EXPECT_EQ(suggested("nothing like this"), SiteNames{});
}

TEST(DomainRecommendation, areSuggestedForTheirDomainThoseBelowAndThoseAbove)
{
    EXPECT_EQ(suggested("google.com"), (SiteNames{"Google", "Gmail", "Google Docs"}));
    EXPECT_EQ(suggested("https://www.google.com/search?q=x"),
        (SiteNames{"Google", "Gmail", "Google Docs"}));
    EXPECT_EQ(suggested("mail.google.com"), (SiteNames{"Google", "Gmail"}));
    EXPECT_EQ(suggested("gist.github.com"), SiteNames{"GitHub"});
    EXPECT_EQ(suggested("oogle.com"), SiteNames{}) << "A domain is compared as a whole.";
}

TEST(DomainRecommendation, areNotSuggestedOnceTheyHaveARule)
{
    const std::vector<DomainInputMethodRule> rules{{Uuid::random(), "google.com", "xkb:us::eng"}};

    EXPECT_EQ(suggested("google", rules), (SiteNames{"Gmail", "Google Docs"}));
}

} // namespace
} // namespace brindlex
