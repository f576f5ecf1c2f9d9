#include "support/switching/MemorySwitchExecutor.h"

#include "inputmethod/SwitchReducer.h"
#include "support/switching/SwitchText.h"

#include <utility>

namespace brindlex {
namespace {

using Event = SwitchScenarioEvent;

bool isVisible(const SwitchEffect::Any& effect)
{
    return std::holds_alternative<SwitchEffect::FireHUD>(effect)
        || std::holds_alternative<SwitchEffect::LogWarning>(effect);
}

std::size_t switchesOf(const SmartInputMethodConfig& config, const std::string& bundleID)
{
    const auto dates = config.appActivations.find(bundleID);
    return dates == config.appActivations.end() ? 0 : dates->second.size();
}

} // namespace

void MemorySwitchExecutor::begin(const SwitchScenario& scenario)
{
    config_ = scenario.config;
    smartConfig_ = scenario.smartConfig;
    echoDelay_ = scenario.echoDelay;
    computer_.browsers = scenario.browsers;
    computer_.frontmostBundleID = scenario.frontmostBundleID;
    computer_.inputSourceID = scenario.sources.front().id;
    for (const auto& source : scenario.sources)
        computer_.names[source.id] = source.name;
}

std::vector<SwitchScenarioOutcome> MemorySwitchExecutor::perform(const SwitchScenario::Step& step)
{
    passTimeUntil(step.time);
    match(
        step.event, [&](const Event::Start&) { dispatch(SwitchEvent::Start{}); },
        [&](const Event::Stop&) { dispatch(SwitchEvent::Stop{}); },
        [&](const Event::Activate& activated) {
            computer_.frontmostBundleID = activated.bundleID;
            dispatch(SwitchEvent::AppActivated{activated.bundleID});
        },
        [&](const Event::UserSelects& selected) {
            computer_.inputSourceID = selected.inputSourceID;
            dispatch(SwitchEvent::InputSourceChanged{});
        },
        [&](const Event::ShowPage& page) { computer_.page = page.host; },
        [&](const Event::Tick&) { dispatch(SwitchEvent::BrowserContextTick{computer_.page}); },
        [&](const Event::SourceChanged&) { dispatch(SwitchEvent::InputSourceChanged{}); },
        [&](const Event::Set& setting) { set(setting); },
        [&](const Event::Refuse& refused) {
            computer_.refusedSources.insert(refused.inputSourceID);
        },
        [&](const Event::Accept& accepted) {
            computer_.refusedSources.erase(accepted.inputSourceID);
        },
        [](const Event::Wait&) {});
    return std::exchange(outcomes_, {});
}

void MemorySwitchExecutor::passTimeUntil(Seconds time)
{
    while (!echoes_.empty() && echoes_.front() <= time) {
        setTime(echoes_.front());
        echoes_.erase(echoes_.begin());
        dispatch(SwitchEvent::InputSourceChanged{});
    }
    setTime(time);
}

void MemorySwitchExecutor::setTime(Seconds time)
{
    computer_.now = computer_.now + (time - time_);
    computer_.systemTime = computer_.systemTime + (time - time_);
    time_ = time;
}

void MemorySwitchExecutor::dispatch(const SwitchEvent::Any& event)
{
    const auto session = state_.learning;
    const auto switches = session ? switchesOf(smartConfig_, session->app.bundleID) : 0;
    computer_.selections.clear();
    const auto effects = reduce(event, state_, smartConfig_, config_, computer_.environment());

    std::vector<SwitchScenarioOutcome> selections;
    for (const auto& source : computer_.selections) {
        const bool isRefused = computer_.refusedSources.contains(source);
        selections.push_back({"select " + source + (isRefused ? " refused" : "")});
        if (!isRefused && echoDelay_)
            echoes_.push_back(time_ + *echoDelay_);
    }
    // The machine selects after it has decided on observers and polling and before the rest.
    for (const auto& effect : effects) {
        if (isVisible(effect))
            for (auto& selection : std::exchange(selections, {}))
                outcomes_.push_back(std::move(selection));
        outcomes_.push_back({text(effect), isVisible(effect)});
    }
    for (auto& selection : selections)
        outcomes_.push_back(std::move(selection));
    if (session && switchesOf(smartConfig_, session->app.bundleID) != switches)
        outcomes_.push_back(
            {"learn " + computer_.inputSourceID.value_or("") + " for " + session->app.bundleID});
}

void MemorySwitchExecutor::set(const SwitchScenarioEvent::Set& setting)
{
    const auto before = config_;
    if (!applySetting(setting.name, setting.value, config_, smartConfig_))
        outcomes_.push_back({"no such setting"});
    smartConfig_.normalizeStats();
    if (config_.enabled != before.enabled)
        dispatch(SwitchEvent::ConfigEnabledChanged{});
    if (config_.domainRulesEnabled != before.domainRulesEnabled)
        dispatch(SwitchEvent::DomainRulesEnabledChanged{});
}

} // namespace brindlex
