#include "inputmethod/SwitchDecision.h"

#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(MatchingDomainRule, isNotForAHostThatHoldsTheDomainElsewhereThanAtItsEnd)
{
    const InputMethodConfig config{
        .domainRulesEnabled = true, .domainRules = {websiteRule("example.com", "german")}};
    for (const char* host : {"example.com.mail.example.org", "example.com.example.co",
             "www.example.com.attacker.net", "example.com-login.org", "example.co.m"})
        EXPECT_EQ(matchingDomainRule(host, config), std::nullopt) << host;
}

} // namespace
} // namespace brindlex
