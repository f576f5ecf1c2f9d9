#include "support/switching/SwitchText.h"

#include "foundation/JsonCoding.h"

namespace brindlex {
namespace {

std::string orNone(const std::optional<std::string>& value) { return value.value_or("none"); }

std::string orNone(const std::optional<InputMethodAutoSwitchContext::Any>& context)
{
    return context ? text(*context) : "none";
}

} // namespace

std::string text(const SwitchEvent::Any& event)
{
    return match(
        event,
        [](const SwitchEvent::AppActivated& activated) {
            return "activate " + orNone(activated.bundleID);
        },
        [](const SwitchEvent::BrowserContextTick& tick) { return "tick " + orNone(tick.host); },
        [](const SwitchEvent::Start&) { return std::string("start"); },
        [](const SwitchEvent::Stop&) { return std::string("stop"); },
        [](const SwitchEvent::ConfigEnabledChanged&) {
            return std::string("switching turned on or off");
        },
        [](const SwitchEvent::DomainRulesEnabledChanged&) {
            return std::string("website rules turned on or off");
        },
        [](const SwitchEvent::InputSourceChanged&) { return std::string("source changed"); },
        [](const SwitchEvent::PlaceChangedInputSource&) { return std::string("place brought"); },
        [](const SwitchEvent::SelectionUndone&) { return std::string("selection undone"); },
        [](const SwitchEvent::EnabledSourcesChanged&) { return std::string("sources changed"); });
}

std::string text(const SwitchEffect::Any& effect)
{
    return match(
        effect, [](const SwitchEffect::FireHUD& hud) { return "hud " + hud.label; },
        [](const SwitchEffect::LogWarning& warning) {
            return "warn " + warning.target + " \"" + warning.message + "\"";
        },
        [](const SwitchEffect::InstallObservers&) { return std::string("install observers"); },
        [](const SwitchEffect::RemoveObservers&) { return std::string("remove observers"); },
        [](const SwitchEffect::StartBrowserPolling&) { return std::string("start polling"); },
        [](const SwitchEffect::StopBrowserPolling&) { return std::string("stop polling"); },
        [](const SwitchEffect::WithdrawHUD&) { return std::string("withdraw hud"); });
}

std::string text(const InputMethodAutoSwitchContext::Any& context)
{
    return match(
        context, [](const InputMethodAutoSwitchContext::App& app) { return "app " + app.bundleID; },
        [](const InputMethodAutoSwitchContext::Domain& domain) {
            return "domain " + domain.domainSuffix;
        });
}

std::string text(SwitchState::Lifecycle lifecycle)
{
    switch (lifecycle) {
    case SwitchState::Lifecycle::stopped:
        return "stopped";
    case SwitchState::Lifecycle::observing:
        return "observing";
    case SwitchState::Lifecycle::observingWithBrowserPolling:
        return "observing with browser polling";
    }
    return "unknown";
}

std::string text(const SwitchState& state)
{
    const auto& window = state.ignoreWindow;
    const auto& memory = state.override;
    std::string result = text(state.lifecycle);
    result += "\nfrontmost " + orNone(state.frontmostBundleID);
    result += "\nlast source " + orNone(state.lastInputSourceID);
    result += "\nignoring " + orNone(window.inputSourceID);
    if (window.deadline)
        result += " until " + std::to_string(window.deadline->secondsSinceReferenceDate);
    result += "\nvisited " + orNone(memory.lastVisitedContext);
    result += "\nswitched " + orNone(memory.lastAutomaticContext) + " to "
        + orNone(memory.lastAutomaticInputSourceID);
    if (state.learning)
        result += "\nlearning " + state.learning->app.bundleID + " from "
            + orNone(state.learning->lastObservedInputSourceID);
    result += "\nstanding";
    if (state.standing.isChosenHere)
        result += " chosen-here";
    if (state.standing.isChosenSinceSwitch)
        result += " chosen-since-switch";
    if (state.standing.isUndoingReported)
        result += " reported";
    return result + " undone " + std::to_string(state.standing.timesUndone) + "\n";
}

std::string text(const InputMethodSwitchDecision& decision)
{
    const auto rule = [&]() -> std::string {
        switch (decision.source) {
        case InputMethodSwitchDecisionSource::websiteRule:
            return "website rule";
        case InputMethodSwitchDecisionSource::manualAppRule:
            return "manual rule";
        case InputMethodSwitchDecisionSource::smartAppRule:
            return "learned rule";
        }
        return "unknown rule";
    };
    return decision.inputSourceID + " by " + rule() + " for app " + orNone(decision.bundleID)
        + " domain " + orNone(decision.matchedDomainSuffix);
}

void PrintTo(const InputMethodConfig& config, std::ostream* out)
{
    *out << prettyJsonText(toJson(config));
}

void PrintTo(const SmartInputMethodConfig& config, std::ostream* out)
{
    *out << prettyJsonText(toJson(config));
}

void PrintTo(const SmartInputMethodAppStats& stats, std::ostream* out)
{
    *out << prettyJsonText(toJson(stats));
}

} // namespace brindlex
