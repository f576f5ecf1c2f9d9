#include "inputmethod/SwitchDecision.h"

#include "foundation/Text.h"
#include "foundation/UnicodeDomain.h"
#include "inputmethod/NormalizedDomain.h"
#include "platform/InputSourceIdentifiers.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

using Source = InputMethodSwitchDecisionSource;

constexpr std::array<Source, 3> sourcesInOrder(SmartInputMethodPriority priority)
{
    using enum InputMethodSwitchDecisionSource;
    switch (priority) {
    case SmartInputMethodPriority::afterManualRules:
        return {websiteRule, manualAppRule, smartAppRule};
    case SmartInputMethodPriority::beforeManualAppRules:
        return {websiteRule, smartAppRule, manualAppRule};
    case SmartInputMethodPriority::highest:
        return {smartAppRule, websiteRule, manualAppRule};
    }
    return {websiteRule, manualAppRule, smartAppRule};
}

bool liesUnder(std::string_view domain, std::string_view suffix)
{
    if (!domain.ends_with(suffix))
        return false;
    const auto rest = domain.substr(0, domain.size() - suffix.size());
    return rest.empty() || rest.ends_with('.');
}

/// The questions of one decision, one for each kind of rule.
struct Place {
    const std::optional<std::string>& bundleID;
    const std::optional<std::string>& host;
    const InputMethodConfig& config;
    const SmartInputMethodConfig* smartConfig;
    bool allowsAppRules;
    Date now;

    std::optional<InputMethodSwitchDecision> decisionBy(Source source) const
    {
        switch (source) {
        case Source::websiteRule:
            return byWebsite();
        case Source::manualAppRule:
            return byManualRule();
        case Source::smartAppRule:
            return byLearnedRule();
        }
        return {};
    }

private:
    std::optional<InputMethodSwitchDecision> byWebsite() const
    {
        const auto rule = matchingDomainRule(host, config);
        if (!rule)
            return {};
        return InputMethodSwitchDecision{
            bundleID, rule->domainSuffix, rule->inputSourceID, Source::websiteRule};
    }

    std::optional<InputMethodSwitchDecision> byManualRule() const
    {
        if (!allowsAppRules || !bundleID)
            return {};
        const auto rule = matchingAppRule(*bundleID, config);
        if (!rule)
            return {};
        return InputMethodSwitchDecision{
            bundleID, std::nullopt, rule->inputSourceID, Source::manualAppRule};
    }

    std::optional<InputMethodSwitchDecision> byLearnedRule() const
    {
        if (!allowsAppRules || !smartConfig)
            return {};
        const auto stats = smartConfig->activeSmartStats(bundleID, now);
        if (!stats)
            return {};
        return InputMethodSwitchDecision{
            bundleID, std::nullopt, *stats->recommendedInputSourceID, Source::smartAppRule};
    }
};

} // namespace

std::optional<InputMethodSwitchDecision> resolveSwitchDecision(
    const std::optional<std::string>& bundleID, const std::optional<std::string>& host,
    const std::optional<std::string>& currentInputSourceID, const InputMethodConfig& config,
    const SmartInputMethodConfig* smartConfig, bool allowsAppRules, Date now)
{
    if (!config.enabled)
        return {};
    const Place place{bundleID, host, config, smartConfig, allowsAppRules, now};
    const auto priority
        = smartConfig ? smartConfig->priority : SmartInputMethodPriority::afterManualRules;
    for (const auto source : sourcesInOrder(priority)) {
        auto decision = place.decisionBy(source);
        if (!decision)
            continue;
        if (currentInputSourceID && isSameSource(decision->inputSourceID, *currentInputSourceID))
            return {};
        return decision;
    }
    return {};
}

std::string description(const InputMethodSwitchDecision& decision)
{
    const auto& source = decision.inputSourceID;
    const auto application = decision.bundleID.value_or("unknown");
    switch (decision.source) {
    case Source::websiteRule:
        return source + " for the website " + decision.matchedDomainSuffix.value_or("unknown")
            + " in " + application + ", by its rule";
    case Source::manualAppRule:
        return source + " for " + application + ", by its rule";
    case Source::smartAppRule:
        return source + " for " + application + ", as learned";
    }
    return source;
}

InputMethodAutoSwitchContext::Any autoSwitchContext(const InputMethodSwitchDecision& decision)
{
    if (decision.source == Source::websiteRule)
        return InputMethodAutoSwitchContext::Domain{decision.matchedDomainSuffix.value_or("")};
    return InputMethodAutoSwitchContext::App{decision.bundleID.value_or("")};
}

std::optional<InputMethodAutoSwitchContext::Any> resolveAutoSwitchContext(
    const std::optional<std::string>& bundleID, const std::optional<std::string>& host,
    const std::optional<std::string>& currentInputSourceID, const InputMethodConfig& config,
    const SmartInputMethodConfig* smartConfig, bool allowsAppRules, Date now)
{
    const auto decision = resolveSwitchDecision(
        bundleID, host, currentInputSourceID, config, smartConfig, allowsAppRules, now);
    if (!decision)
        return {};
    return autoSwitchContext(*decision);
}

std::optional<DomainInputMethodRule> matchingDomainRule(
    const std::optional<std::string>& host, const InputMethodConfig& config)
{
    if (!config.domainRulesEnabled || !host || config.domainRules.empty())
        return {};
    const auto normalized = normalizedDomain(*host);
    if (!normalized)
        return {};
    // Browsers show the one form and report the other.
    const auto domain = unicodeDomain(*normalized);
    const DomainInputMethodRule* best = nullptr;
    std::size_t longest = 0;
    for (const auto& rule : config.domainRules) {
        const auto suffix = unicodeDomain(rule.domainSuffix);
        if (!liesUnder(domain, suffix))
            continue;
        const auto length = characters(suffix).size();
        if (best && length <= longest)
            continue;
        best = &rule;
        longest = length;
    }
    if (!best)
        return {};
    return *best;
}

std::optional<InputMethodRule> matchingAppRule(
    const std::string& bundleID, const InputMethodConfig& config)
{
    const auto rule = std::find_if(config.rules.begin(), config.rules.end(),
        [&](const InputMethodRule& candidate) { return candidate.app.bundleID == bundleID; });
    if (rule == config.rules.end())
        return {};
    return *rule;
}

} // namespace brindlex
