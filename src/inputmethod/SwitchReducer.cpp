#include "inputmethod/SwitchReducer.h"

#include "inputmethod/SwitchDecision.h"
#include "inputmethod/TruncatedHUDLabel.h"
#include "platform/InputSourceIdentifiers.h"

#include <utility>

namespace brindlex {
namespace {

using Effects = std::vector<SwitchEffect::Any>;
using Lifecycle = SwitchState::Lifecycle;

constexpr Seconds echoTime = 1.0;

/// One step of the machine: a function for each event, and the switch attempt that they share.
class Step {
public:
    Step(SwitchState& state, SmartInputMethodConfig& smartConfig, const InputMethodConfig& config,
        const SwitchEnvironment& environment)
        : state_(state), smartConfig_(smartConfig), config_(config), environment_(environment)
    {
    }

    /// What the step has brought about so far.
    Effects effects{};

    void appActivated(const std::optional<std::string>& bundleID)
    {
        state_.frontmostBundleID = bundleID;
        if (!config_.enabled) {
            stopPolling();
            return;
        }
        beginLearning(bundleID);
        if (config_.domainRulesEnabled && environment_.isSupportedBrowser(bundleID)) {
            startPolling();
            browserContextTick(bundleID ? environment_.currentBrowserHost(bundleID) : std::nullopt);
        } else {
            stopPolling();
            attemptSwitch(bundleID, std::nullopt, true);
        }
    }

    /// While the page of a browser is not known, no rule speaks, not even one for the browser: it
    /// would be taken back as soon as the page is known.
    void browserContextTick(const std::optional<std::string>& host)
    {
        if (!config_.enabled || !config_.domainRulesEnabled
            || !environment_.isSupportedBrowser(state_.frontmostBundleID))
            stopPolling();
        else
            attemptSwitch(state_.frontmostBundleID, host, host.has_value());
    }

    void start()
    {
        if (!config_.enabled) {
            stop();
            return;
        }
        if (state_.lifecycle == Lifecycle::stopped) {
            effects.emplace_back(SwitchEffect::InstallObservers{});
            state_.lifecycle = Lifecycle::observing;
        }
        state_.lastInputSourceID = environment_.currentInputSourceID();
        appActivated(environment_.currentFrontmostBundleID());
    }

    void domainRulesEnabledChanged() { appActivated(environment_.currentFrontmostBundleID()); }

    void stop()
    {
        stopPolling();
        if (state_.lifecycle != Lifecycle::stopped)
            effects.emplace_back(SwitchEffect::RemoveObservers{});
        state_.learning.reset();
        state_.ignoreWindow = {};
        state_.lifecycle = Lifecycle::stopped;
    }

    void inputSourceChanged()
    {
        if (!config_.enabled)
            return;
        const auto current = environment_.currentInputSourceID();
        if (!current)
            return;
        if (takeEcho(*current)) {
            if (state_.learning)
                state_.learning->lastObservedInputSourceID = current;
        } else {
            learn(*current);
        }
        state_.lastInputSourceID = current;
    }

private:
    void startPolling()
    {
        if (state_.lifecycle == Lifecycle::observingWithBrowserPolling)
            return;
        effects.emplace_back(SwitchEffect::StartBrowserPolling{});
        state_.lifecycle = Lifecycle::observingWithBrowserPolling;
    }

    void stopPolling()
    {
        if (state_.lifecycle != Lifecycle::observingWithBrowserPolling)
            return;
        effects.emplace_back(SwitchEffect::StopBrowserPolling{});
        state_.lifecycle = Lifecycle::observing;
    }

    void beginLearning(const std::optional<std::string>& bundleID)
    {
        const auto app = environment_.appIdentifier(bundleID);
        if (!app)
            return;
        const auto current = environment_.currentInputSourceID();
        if (smartConfig_.learningEnabled)
            state_.learning = {*app, current ? current : state_.lastInputSourceID};
        else
            state_.learning.reset();
        if (current)
            state_.lastInputSourceID = current;
    }

    /// Whether the change is the echo of the program's own selection. An echo, also one that comes
    /// too late to count as one, closes the window; a change to another source leaves it open.
    bool takeEcho(const std::string& current)
    {
        if (!state_.ignoreWindow.inputSourceID
            || !isSameSource(*state_.ignoreWindow.inputSourceID, current))
            return false;
        const auto deadline = std::exchange(state_.ignoreWindow, {}).deadline;
        return deadline && environment_.now() <= *deadline;
    }

    void learn(const std::string& current)
    {
        if (!smartConfig_.learningEnabled || !state_.learning)
            return;
        const auto& lastObserved = state_.learning->lastObservedInputSourceID;
        if (lastObserved && isSameSource(*lastObserved, current))
            return;
        const auto time = environment_.systemTime();
        smartConfig_.recordSample(current, state_.learning->app, time);
        smartConfig_.recordActivation(state_.learning->app.bundleID, time);
        state_.learning->lastObservedInputSourceID = current;
    }

    void attemptSwitch(const std::optional<std::string>& bundleID,
        const std::optional<std::string>& host, bool allowsAppRules)
    {
        const auto current = environment_.currentInputSourceID();
        const auto decision = resolveSwitchDecision(bundleID, host, current, config_, &smartConfig_,
            allowsAppRules, environment_.systemTime());
        if (!decision)
            return;
        const auto context = autoSwitchContext(*decision);
        noteVisit(context);
        if (isOverridden(context, *decision, current))
            return;
        // The notification of the change may arrive at any time from the selection on.
        state_.ignoreWindow = {decision->inputSourceID, environment_.now() + echoTime};
        if (!environment_.selectInputSource(decision->inputSourceID)) {
            state_.ignoreWindow = {};
            effects.emplace_back(failureWarning(*decision));
            return;
        }
        state_.override = {context, context, decision->inputSourceID};
        if (config_.showHUD)
            effects.emplace_back(SwitchEffect::FireHUD{truncatedHUDLabel(
                environment_.currentInputSourceLocalizedName().value_or(decision->inputSourceID))});
    }

    void noteVisit(const InputMethodAutoSwitchContext::Any& context)
    {
        if (state_.override.lastVisitedContext == context)
            return;
        state_.override = {context, std::nullopt, std::nullopt};
    }

    /// Whether the program has moved this place to the decided source before: as another one is
    /// selected now, the user has changed it since.
    bool isOverridden(const InputMethodAutoSwitchContext::Any& context,
        const InputMethodSwitchDecision& decision, const std::optional<std::string>& current) const
    {
        return state_.override.lastAutomaticContext == context
            && state_.override.lastAutomaticInputSourceID == decision.inputSourceID && current
            && !isSameSource(*current, decision.inputSourceID);
    }

    static SwitchEffect::LogWarning failureWarning(const InputMethodSwitchDecision& decision)
    {
        const auto place
            = decision.matchedDomainSuffix.value_or(decision.bundleID.value_or("unknown"));
        return {"Failed to select " + decision.inputSourceID + " for " + place, "input-method"};
    }

    SwitchState& state_;
    SmartInputMethodConfig& smartConfig_;
    const InputMethodConfig& config_;
    const SwitchEnvironment& environment_;
};

} // namespace

std::vector<SwitchEffect::Any> reduce(const SwitchEvent::Any& event, SwitchState& state,
    SmartInputMethodConfig& smartConfig, const InputMethodConfig& config,
    const SwitchEnvironment& environment)
{
    Step step(state, smartConfig, config, environment);
    match(
        event,
        [&](const SwitchEvent::AppActivated& activated) { step.appActivated(activated.bundleID); },
        [&](const SwitchEvent::BrowserContextTick& tick) { step.browserContextTick(tick.host); },
        [&](const SwitchEvent::Start&) { step.start(); },
        [&](const SwitchEvent::Stop&) { step.stop(); },
        [&](const SwitchEvent::ConfigEnabledChanged&) { step.start(); },
        [&](const SwitchEvent::DomainRulesEnabledChanged&) { step.domainRulesEnabledChanged(); },
        [&](const SwitchEvent::InputSourceChanged&) { step.inputSourceChanged(); });
    return std::move(step.effects);
}

} // namespace brindlex
