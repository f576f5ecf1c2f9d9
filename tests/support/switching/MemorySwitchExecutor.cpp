#include "support/switching/MemorySwitchExecutor.h"

#include "inputmethod/SwitchReducer.h"
#include "support/switching/SwitchSettings.h"
#include "support/switching/SwitchText.h"

#include <utility>

namespace brindlex {
namespace {

using Step = SwitchScenarioStep;

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
    const auto& preparation = scenario.preparation;
    showsAll_ = !scenario.file.isPlayedBy("desktop");
    config_ = preparation.config;
    smartConfig_ = preparation.smartConfig;
    echoDelay_ = preparation.echoDelay;
    computer_.browsers = preparation.browsers;
    computer_.frontmostBundleID = preparation.frontmostBundleID;
    computer_.inputSourceID = preparation.sources.front().id;
    for (const auto& source : preparation.sources)
        computer_.names[source.id] = source.name;
}

std::vector<std::string> MemorySwitchExecutor::perform(const SwitchScenario::Step& step)
{
    passTimeUntil(step.time);
    carryOut(step.what);
    return takeEffects();
}

void MemorySwitchExecutor::carryOut(const SwitchScenarioStep::Any& step)
{
    match(
        step, [](const Step::Wait&) {}, [&](const Step::Start&) { dispatch(SwitchEvent::Start{}); },
        [&](const Step::Stop&) { dispatch(SwitchEvent::Stop{}); },
        [&](const Step::Activate& activation) {
            computer_.frontmostBundleID = activation.bundleID;
            dispatch(SwitchEvent::AppActivated{activation.bundleID});
        },
        [&](const Step::UserSelects& selection) {
            computer_.inputSourceID = selection.inputSourceID;
            dispatch(SwitchEvent::InputSourceChanged{});
        },
        [&](const Step::PlaceBrings& place) {
            computer_.inputSourceID = place.inputSourceID;
            dispatch(SwitchEvent::PlaceChangedInputSource{});
        },
        [&](const Step::DesktopUndoes& undoing) {
            computer_.inputSourceID = undoing.inputSourceID;
            dispatch(SwitchEvent::SelectionUndone{});
        },
        [&](const Step::ShowPage& page) { computer_.page = page.host; },
        [&](const Step::Tick&) { dispatch(SwitchEvent::BrowserContextTick{computer_.page}); },
        [&](const Step::SourceChanged&) { dispatch(SwitchEvent::InputSourceChanged{}); },
        [&](const Step::Set& change) { set(change.setting); },
        [&](const Step::Refuse& refused) {
            computer_.refusedSources.insert(refused.inputSourceID);
        },
        [&](const Step::Accept& accepted) {
            computer_.refusedSources.erase(accepted.inputSourceID);
        });
}

std::vector<std::string> MemorySwitchExecutor::takeEffects()
{
    std::vector<std::string> effects;
    for (auto& outcome : std::exchange(outcomes_, {}))
        if (showsAll_ || outcome.isVisible)
            effects.push_back(std::move(outcome.text));
    return effects;
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

    std::vector<Outcome> selections;
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

void MemorySwitchExecutor::set(ScenarioWords setting)
{
    const auto before = config_;
    changeSetting(setting, config_, smartConfig_);
    smartConfig_.normalizeStats();
    if (config_.enabled != before.enabled)
        dispatch(SwitchEvent::ConfigEnabledChanged{});
    if (config_.domainRulesEnabled != before.domainRulesEnabled)
        dispatch(SwitchEvent::DomainRulesEnabledChanged{});
}

} // namespace brindlex
