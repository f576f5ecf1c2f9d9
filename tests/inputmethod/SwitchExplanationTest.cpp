#include "inputmethod/SwitchExplanation.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Source = InputMethodSwitchDecisionSource;

SwitchReason reasonOf(Source source)
{
    return {{"editor", {}, "xkb:de::deu", source}, Date{7}, 0, {}};
}

TEST(SwitchExplanation, saysThatNoRuleHasBeenUsed)
{
    EXPECT_EQ(explanation({}), SwitchExplanation::Any(SwitchExplanation::NotUsedYet{}));
}

TEST(SwitchExplanation, namesTheKindOfRuleThatDecided)
{
    auto website = reasonOf(Source::websiteRule);
    website.decision.matchedDomainSuffix = "example.org";
    auto learned = reasonOf(Source::smartAppRule);
    learned.changes = 10;

    EXPECT_EQ(explanation(reasonOf(Source::manualAppRule)),
        SwitchExplanation::Any(SwitchExplanation::ManualRule{Date{7}}));
    EXPECT_EQ(explanation(website),
        SwitchExplanation::Any(SwitchExplanation::WebsiteRule{"example.org", Date{7}}));
    EXPECT_EQ(
        explanation(learned), SwitchExplanation::Any(SwitchExplanation::LearnedRule{10, Date{7}}));
}

TEST(SwitchExplanation, putsTheUsersChoiceBeforeEveryRule)
{
    for (const auto source : {Source::websiteRule, Source::manualAppRule, Source::smartAppRule}) {
        auto reason = reasonOf(source);
        reason.overriddenAt = Date{9};

        EXPECT_EQ(
            explanation(reason), SwitchExplanation::Any(SwitchExplanation::Overridden{Date{9}}));
    }
}

} // namespace
} // namespace brindlex
