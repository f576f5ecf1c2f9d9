#include "inputmethod/SwitchDecision.h"

#include "support/switching/SwitchRecords.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace brindlex {
namespace {

InputMethodConfig websites(std::vector<DomainInputMethodRule> rules)
{
    return {.domainRulesEnabled = true, .domainRules = std::move(rules)};
}

TEST(MatchingDomainRule, isForTheDomainAndEverythingBelow)
{
    const auto rule = websiteRule("example.com", "german");
    const auto config = websites({rule});
    EXPECT_EQ(matchingDomainRule("example.com", config), rule);
    EXPECT_EQ(matchingDomainRule("mail.example.com", config), rule);
    EXPECT_EQ(matchingDomainRule("a.b.example.com", config), rule);
    EXPECT_EQ(matchingDomainRule("https://WWW.Example.com:80/x", config), rule);
    EXPECT_EQ(matchingDomainRule("myexample.com", config), std::nullopt);
    EXPECT_EQ(matchingDomainRule("example.com.org", config), std::nullopt);
    EXPECT_EQ(matchingDomainRule("xample.com", config), std::nullopt);
    EXPECT_EQ(matchingDomainRule("com", config), std::nullopt);
}

TEST(MatchingDomainRule, isTheLongest)
{
    const auto parent = websiteRule("example.com", "german");
    const auto child = websiteRule("mail.example.com", "english");
    for (const auto& config : {websites({parent, child}), websites({child, parent})}) {
        EXPECT_EQ(matchingDomainRule("in.mail.example.com", config), child);
        EXPECT_EQ(matchingDomainRule("mail.example.com", config), child);
        EXPECT_EQ(matchingDomainRule("web.example.com", config), parent);
    }
}

TEST(MatchingDomainRule, isTheFirstOfEqualOnes)
{
    const auto first = websiteRule("example.com", "german");
    const auto second = websiteRule("example.com", "english");
    EXPECT_EQ(matchingDomainRule("example.com", websites({first, second})), first);
    EXPECT_EQ(matchingDomainRule("example.com", websites({second, first})), second);
}

TEST(MatchingDomainRule, isNothingWhileWebsiteRulesAreOffOrThePageIsUnknown)
{
    auto config = websites({websiteRule("example.com", "german")});
    EXPECT_EQ(matchingDomainRule(std::nullopt, config), std::nullopt);
    EXPECT_EQ(matchingDomainRule("", config), std::nullopt);
    EXPECT_EQ(matchingDomainRule("not a domain.example.com", config), std::nullopt);
    config.domainRulesEnabled = false;
    EXPECT_EQ(matchingDomainRule("example.com", config), std::nullopt);
}

TEST(MatchingDomainRule, takesTheSuffixAsItIsStored)
{
    EXPECT_EQ(matchingDomainRule("example.com", websites({websiteRule("Example.com", "x")})),
        std::nullopt);
    EXPECT_EQ(matchingDomainRule("example.com", websites({websiteRule(".example.com", "x")})),
        std::nullopt);
    EXPECT_EQ(matchingDomainRule("example.com", websites({websiteRule("", "x")})), std::nullopt);
    const auto topLevel = websiteRule("com", "x");
    EXPECT_EQ(matchingDomainRule("example.com", websites({topLevel})), topLevel);
}

TEST(MatchingDomainRule, comparesOtherScripts)
{
    const auto rule = websiteRule("bücher.example", "german");
    EXPECT_EQ(matchingDomainRule("https://shop.BÜCHER.example/", websites({rule})), rule);
}

TEST(MatchingDomainRule, isTheSameInUnicodeAndInPunycode)
{
    const auto readable = websiteRule("bücher.example", "german");
    const auto encoded = websiteRule("xn--bcher-kva.example", "german");
    for (const auto& rule : {readable, encoded})
        for (const auto* page : {"https://www.bücher.example/", "https://xn--bcher-kva.example",
                 "shop.XN--BCHER-KVA.example", "bücher.example"})
            EXPECT_EQ(matchingDomainRule(page, websites({rule})), rule) << page;
    EXPECT_EQ(matchingDomainRule("bucher.example", websites({encoded})), std::nullopt);
    EXPECT_EQ(matchingDomainRule("bücher.example", websites({encoded, readable})), encoded);
}

TEST(MatchingAppRule, isTheFirstForTheApplication)
{
    const auto first = appRule("a", "german");
    const auto second = appRule("a", "english");
    const auto other = appRule("b", "french");
    const InputMethodConfig config{.rules = {other, first, second}};
    EXPECT_EQ(matchingAppRule("a", config), first);
    EXPECT_EQ(matchingAppRule("b", config), other);
    EXPECT_EQ(matchingAppRule("A", config), std::nullopt);
    EXPECT_EQ(matchingAppRule("", config), std::nullopt);
}

TEST(MatchingAppRule, looksAtTheIdentifierOnly)
{
    auto rule = appRule("a", "german");
    rule.app.displayName = "b";
    EXPECT_EQ(matchingAppRule("a", {.rules = {rule}}), rule);
    EXPECT_EQ(matchingAppRule("b", {.rules = {rule}}), std::nullopt);
}

} // namespace
} // namespace brindlex
