#include "inputmethod/SwitchReducer.h"

#include "inputmethod/SwitchAttempt.h"
#include "platform/InputSourceIdentifiers.h"

#include <utility>

namespace brindlex {
namespace {

using Effects = std::vector<SwitchEffect::Any>;
using Lifecycle = SwitchState::Lifecycle;

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
        beginVisit();
        beginLearning(bundleID);
        applyRules(bundleID);
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
            state_.standing.isChosenHere = true;
            state_.standing.isChosenSinceSwitch = true;
            learn(*current);
        }
        state_.lastInputSourceID = current;
    }

    /// What the place brought is where learning goes on from. The rules get their say, unless a
    /// person has chosen in this place, or has chosen what has come back.
    void placeChangedInputSource()
    {
        if (!observeAnew())
            return;
        if (!state_.standing.isChosenSinceSwitch)
            forgetSwitch();
        if (!state_.standing.isChosenHere)
            applyRules(state_.frontmostBundleID);
    }

    /// The rules are applied once more. What is undone twice is left so until the next activation:
    /// the memory of the switch keeps looks at the browser's page from trying it again.
    void selectionUndone()
    {
        if (!observeAnew() || state_.standing.isChosenHere)
            return;
        if (++state_.standing.timesUndone == 1) {
            forgetSwitch();
            applyRules(state_.frontmostBundleID);
        } else {
            giveUp();
        }
    }

    void enabledSourcesChanged()
    {
        if (!config_.enabled)
            return;
        if (state_.standing.isChosenHere) {
            observeAnew();
            return;
        }
        state_.lastInputSourceID = environment_.currentInputSourceID();
        appActivated(environment_.currentFrontmostBundleID());
    }

private:
    void beginVisit()
    {
        auto& standing = state_.standing;
        if (standing.timesUndone > 0 && !standing.isChosenSinceSwitch)
            forgetSwitch();
        standing.timesUndone = 0;
        standing.isChosenHere = false;
    }

    void applyRules(const std::optional<std::string>& bundleID)
    {
        if (config_.domainRulesEnabled && environment_.isSupportedBrowser(bundleID)) {
            startPolling();
            browserContextTick(bundleID ? environment_.currentBrowserHost(bundleID) : std::nullopt);
        } else {
            stopPolling();
            attemptSwitch(bundleID, std::nullopt, true);
        }
    }

    /// Takes what is selected for what has been so all along; whether that is anything.
    bool observeAnew()
    {
        const auto current = config_.enabled ? environment_.currentInputSourceID() : std::nullopt;
        if (!current)
            return false;
        state_.ignoreWindow = {};
        if (state_.learning)
            state_.learning->lastObservedInputSourceID = current;
        state_.lastInputSourceID = current;
        return true;
    }

    void forgetSwitch()
    {
        state_.override.lastAutomaticContext.reset();
        state_.override.lastAutomaticInputSourceID.reset();
    }

    void giveUp()
    {
        const auto lost = state_.override.lastAutomaticInputSourceID;
        if (!lost)
            return;
        if (config_.showHUD)
            effects.emplace_back(SwitchEffect::WithdrawHUD{});
        if (std::exchange(state_.standing.isUndoingReported, true))
            return;
        const auto reason = environment_.whyUndone();
        effects.emplace_back(SwitchEffect::LogWarning{
            "The desktop undoes the selection of " + *lost + (reason.empty() ? "" : ": " + reason),
            "input-method"});
    }

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
        const auto effect = brindlex::attemptSwitch(
            {bundleID, host, allowsAppRules}, state_, smartConfig_, config_, environment_);
        if (effect)
            effects.push_back(*effect);
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
        [&](const SwitchEvent::InputSourceChanged&) { step.inputSourceChanged(); },
        [&](const SwitchEvent::PlaceChangedInputSource&) { step.placeChangedInputSource(); },
        [&](const SwitchEvent::SelectionUndone&) { step.selectionUndone(); },
        [&](const SwitchEvent::EnabledSourcesChanged&) { step.enabledSourcesChanged(); });
    return std::move(step.effects);
}

} // namespace brindlex
