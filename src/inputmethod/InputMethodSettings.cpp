#include "inputmethod/InputMethodSettings.h"

#include "foundation/RestoredMember.h"
#include "foundation/Text.h"
#include "inputmethod/NormalizedDomain.h"
#include "inputmethod/SmartInputMethodForgetting.h"
#include "log/Log.h"
#include "platform/InputSourceIdentifiers.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

template <typename Rule>
void setSource(std::vector<Rule>& rules, const Uuid& id, const std::string& inputSourceID)
{
    for (auto& rule : rules)
        if (rule.id == id)
            rule.inputSourceID = inputSourceID;
}

template <typename Rule>
void remove(std::vector<Rule>& rules, const Uuid& id)
{
    std::erase_if(rules, [&](const Rule& rule) { return rule.id == id; });
}

} // namespace

SmartInputMethodStatus statusOf(const SmartInputMethodAppStats& stats)
{
    if (stats.isActive)
        return SmartInputMethodStatus::active;
    return stats.isDisabled ? SmartInputMethodStatus::disabled : SmartInputMethodStatus::learning;
}

std::string matchText(const SmartInputMethodAppStats& stats)
{
    return std::to_string(stats.recommendationPercent) + "%";
}

InputMethodSettings::InputMethodSettings(InputMethodConfigStore& store,
    SmartInputMethodConfigStore& smartStore, const SwitchReasons& reasons,
    const TextInputSourceService& sources, const AppIdentifierLoader& loader, const Clock& clock)
    : store_(store), smartStore_(smartStore), reasons_(reasons), sources_(sources), loader_(loader),
      clock_(clock), availableSources_(sources.availableSources())
{
}

bool InputMethodSettings::isMissing(const std::string& inputSourceID) const
{
    return std::none_of(availableSources_.begin(), availableSources_.end(),
        [&](const TextInputSource& source) { return isSameSource(source.id, inputSourceID); });
}

SwitchExplanation::Any InputMethodSettings::why(const std::string& bundleID) const
{
    return explanation(reasons_.reason(bundleID));
}

void InputMethodSettings::change(const std::function<void(InputMethodConfig&)>& change)
{
    auto changed = config();
    change(changed);
    store_.setConfig(std::move(changed));
}

void InputMethodSettings::changeSmart(const std::function<void(SmartInputMethodConfig&)>& change)
{
    auto changed = smartConfig();
    change(changed);
    smartStore_.setConfig(std::move(changed));
}

std::optional<Uuid> InputMethodSettings::addAppRule(const std::filesystem::path& bundlePath)
{
    const auto app = loader_.load(bundlePath);
    if (!app) {
        Log::error(
            "Failed to load app: " + std::string(logLabel(app.error())), logCategory::inputMethod);
        return {};
    }
    const auto& rules = config().rules;
    if (std::any_of(rules.begin(), rules.end(),
            [&](const InputMethodRule& rule) { return rule.app.bundleID == app->bundleID; }))
        return {};
    const auto source = sourceOfNewRule();
    if (!source) {
        Log::warn("No input source available for new rule", logCategory::inputMethod);
        return {};
    }
    const InputMethodRule rule{Uuid::random(), *app, *source};
    change([&](InputMethodConfig& config) { config.rules.push_back(rule); });
    return rule.id;
}

void InputMethodSettings::setAppRuleSource(const Uuid& id, const std::string& inputSourceID)
{
    change([&](InputMethodConfig& config) { setSource(config.rules, id, inputSourceID); });
}

void InputMethodSettings::removeAppRule(const Uuid& id)
{
    change([&](InputMethodConfig& config) { remove(config.rules, id); });
}

void InputMethodSettings::restoreAppRule(const InputMethodRule& rule, std::size_t index)
{
    const auto application = [](const InputMethodRule& each) { return each.app.bundleID; };
    change(
        [&](InputMethodConfig& config) { restoreMember(config.rules, rule, index, application); });
}

std::optional<Uuid> InputMethodSettings::addDomainRule(const std::string& text)
{
    const auto domain = normalizedDomain(text);
    const auto& rules = config().domainRules;
    const auto isKnown
        = [&](const DomainInputMethodRule& rule) { return rule.domainSuffix == *domain; };
    if (!domain || std::any_of(rules.begin(), rules.end(), isKnown))
        return {};
    const auto source = sourceOfNewRule();
    if (!source)
        return {};
    // Once more, since only one "www." goes at a time.
    const auto suffix = normalizedDomain(*domain).value_or(lowercased(trimmed(*domain)));
    const DomainInputMethodRule rule{Uuid::random(), suffix, *source};
    change([&](InputMethodConfig& config) { config.domainRules.push_back(rule); });
    return rule.id;
}

void InputMethodSettings::setDomainRuleSource(const Uuid& id, const std::string& inputSourceID)
{
    change([&](InputMethodConfig& config) { setSource(config.domainRules, id, inputSourceID); });
}

void InputMethodSettings::removeDomainRule(const Uuid& id)
{
    change([&](InputMethodConfig& config) { remove(config.domainRules, id); });
}

void InputMethodSettings::restoreDomainRule(const DomainInputMethodRule& rule, std::size_t index)
{
    change([&](InputMethodConfig& config) {
        restoreMember(config.domainRules, rule, index, &DomainInputMethodRule::domainSuffix);
    });
}

std::vector<SmartInputMethodAppStats> InputMethodSettings::displayedStats() const
{
    auto stats = smartConfig().appStats;
    if (const auto shown = smartConfig().topAppBundleIDs(clock_.now()))
        std::erase_if(stats, [&](const SmartInputMethodAppStats& entry) {
            return !shown->contains(entry.app.bundleID);
        });
    return stats;
}

void InputMethodSettings::setDisabled(const std::string& bundleID, bool isDisabled)
{
    changeSmart([&](SmartInputMethodConfig& config) { config.setDisabled(bundleID, isDisabled); });
}

void InputMethodSettings::clearStats(Uuid id)
{
    for (const auto& step : brindlex::clearStats(smartConfig(), id))
        changeSmart(step);
}

std::function<void()> InputMethodSettings::deleteStats(Uuid id)
{
    const auto before = smartConfig();
    for (const auto& step : brindlex::deleteStats(before, id))
        changeSmart(step);
    const auto place = std::find_if(before.appStats.begin(), before.appStats.end(),
        [&](const SmartInputMethodAppStats& stats) { return stats.id == id; });
    if (place == before.appStats.end())
        return [] {};
    const auto index = static_cast<std::size_t>(place - before.appStats.begin());
    return [this, before, index] { restoreStats(before, index); };
}

void InputMethodSettings::restoreStats(const SmartInputMethodConfig& before, std::size_t index)
{
    const auto& stats = before.appStats[index];
    changeSmart([&](SmartInputMethodConfig& config) {
        const auto learned = config.appStats.size();
        restoreMember(config.appStats, stats, index,
            [](const SmartInputMethodAppStats& each) { return each.app.bundleID; });
        const auto switches = before.appActivations.find(stats.app.bundleID);
        if (config.appStats.size() > learned && switches != before.appActivations.end())
            config.appActivations.insert(*switches);
    });
}

std::optional<std::string> InputMethodSettings::sourceOfNewRule() const
{
    if (const auto current = sources_.current())
        return current->id;
    if (availableSources_.empty())
        return {};
    return availableSources_.front().id;
}

} // namespace brindlex
