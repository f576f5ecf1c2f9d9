#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/Subscription.h"
#include "inputmethod/InputMethodConfigStore.h"
#include "inputmethod/RuleObstacles.h"
#include "inputmethod/SmartInputMethodConfigStore.h"
#include "inputmethod/SwitchEffect.h"
#include "inputmethod/SwitchEnvironment.h"
#include "inputmethod/SwitchEvent.h"
#include "inputmethod/SwitchReasons.h"
#include "inputmethod/SwitchState.h"
#include "platform/AppGroupContainer.h"
#include "platform/ApplicationBundles.h"
#include "platform/BrowserPageReading.h"
#include "platform/Clock.h"
#include "platform/IconRendering.h"
#include "platform/KeyboardInputSources.h"
#include "platform/MainThread.h"
#include "platform/RunningApplications.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// What input switching asks of the computer.
struct SwitchAbilities {
    MainThread& mainThread;
    Clock& clock;
    RunningApplications& applications;
    ApplicationBundles& bundles;
    IconRendering& icons;
    AppGroupContainer& container;
    KeyboardInputSources& inputSources;
    BrowserPageReading& browserPages;
};

/// The shell around the switching state machine.
///
/// Turns what the computer and the stores report into events, feeds them one at a time to `reduce`,
/// writes what was learned back to its store and carries out the effects in their order. Logs each
/// switch and what keeps rules from applying, and notes the reason of each switch. Decides nothing
/// itself. With switching enabled it observes from its construction on. It expects `Stop` to have
/// been dispatched before its end. Main thread only.
class InputMethodSwitchCoordinator {
public:
    InputMethodSwitchCoordinator(InputMethodConfigStore& store,
        SmartInputMethodConfigStore& smartStore, SwitchReasons& reasons, SwitchAbilities abilities);

    /// Called with the label to show when a switch has happened.
    std::function<void(const std::string& label)> onSwitch;

    /// Called when a switch that was shown turns out not to hold.
    std::function<void()> onSwitchUndone;

    /// Handles the event, or queues it while another one is being handled; events raised by effects
    /// or by subscribers of the stores so stay in order.
    void dispatch(const SwitchEvent::Any& event);

    const SwitchState& state() const { return state_; }

private:
    void handle(const SwitchEvent::Any& event);
    void carryOut(const SwitchEffect::Any& effect);
    void installObservers();
    void removeObservers();
    void startBrowserPolling();
    void stopBrowserPolling();
    void tick();
    SwitchEnvironment environment();
    void noteSwitch(const InputMethodSwitchDecision& decision);
    std::optional<AppIdentifier> appIdentifier(const std::optional<std::string>& bundleID) const;
    std::optional<std::string> browserHost(const std::optional<std::string>& bundleID) const;

    InputMethodConfigStore& store_;
    SmartInputMethodConfigStore& smartStore_;
    SwitchReasons& reasons_;
    SwitchAbilities abilities_;
    RuleObstacles obstacles_;
    SwitchState state_;
    std::deque<SwitchEvent::Any> pendingEvents_;
    bool isDispatching_ = false;
    Subscription appActivationToken_;
    Subscription inputSourceChangeToken_;
    Subscription enabledSourcesToken_;
    Subscription rulesToken_;
    Subscription browserPollTimer_;
    Subscription browserPageToken_;
    Subscription enabledCancellable_;
    Subscription domainRulesEnabledCancellable_;
};

} // namespace brindlex
