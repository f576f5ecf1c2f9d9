#include "inputmethod/InputMethodSwitchCoordinator.h"

#include "applications/AppIdentifierLoader.h"
#include "foundation/FatalError.h"
#include "inputmethod/BrowserURLProvider.h"
#include "inputmethod/SwitchReducer.h"
#include "inputmethod/TextInputSourceService.h"
#include "log/Log.h"

namespace brindlex {
namespace {

constexpr Seconds browserPollInterval = 0.8;

SwitchEvent::Any eventOf(SelectionCause cause)
{
    switch (cause) {
    case SelectionCause::choice:
        return SwitchEvent::InputSourceChanged{};
    case SelectionCause::place:
        return SwitchEvent::PlaceChangedInputSource{};
    case SelectionCause::undoing:
        return SwitchEvent::SelectionUndone{};
    }
    fatalError("A change of the input source without a cause");
}

AppIdentifier identifierOf(const RunningApplication& application, const std::string& bundleID,
    const SwitchAbilities& abilities)
{
    const AppIdentifierLoader loader(abilities.bundles, abilities.icons, abilities.container);
    if (application.bundlePath)
        if (const auto loaded = loader.load(*application.bundlePath))
            return *loaded;
    return {application.bundleIdentifier.value_or(bundleID),
        application.localizedName.value_or(bundleID), {}};
}

} // namespace

InputMethodSwitchCoordinator::InputMethodSwitchCoordinator(InputMethodConfigStore& store,
    SmartInputMethodConfigStore& smartStore, SwitchReasons& reasons, SwitchAbilities abilities)
    : store_(store), smartStore_(smartStore), reasons_(reasons), abilities_(abilities),
      obstacles_(abilities.inputSources, abilities.bundles, abilities.applications)
{
    // The replay at subscription is wanted: it makes the first event of each kind.
    enabledCancellable_
        = store_.config()
              .stream()
              .map(&InputMethodConfig::enabled)
              .withoutRepeats()
              .subscribe([this](bool) { dispatch(SwitchEvent::ConfigEnabledChanged{}); });
    domainRulesEnabledCancellable_
        = store_.config()
              .stream()
              .map(&InputMethodConfig::domainRulesEnabled)
              .withoutRepeats()
              .subscribe([this](bool) { dispatch(SwitchEvent::DomainRulesEnabledChanged{}); });
}

void InputMethodSwitchCoordinator::dispatch(const SwitchEvent::Any& event)
{
    pendingEvents_.push_back(event);
    if (isDispatching_)
        return;
    isDispatching_ = true;
    while (!pendingEvents_.empty()) {
        const auto next = std::move(pendingEvents_.front());
        pendingEvents_.pop_front();
        handle(next);
    }
    isDispatching_ = false;
}

void InputMethodSwitchCoordinator::handle(const SwitchEvent::Any& event)
{
    auto smartConfig = smartStore_.config().value();
    const auto config = store_.config().value();
    const auto effects = reduce(event, state_, smartConfig, config, environment());
    smartStore_.setConfig(std::move(smartConfig));
    smartStore_.persist();
    for (const auto& effect : effects)
        carryOut(effect);
    reasons_.noteEvent(event, state_, abilities_.clock.now());
}

void InputMethodSwitchCoordinator::carryOut(const SwitchEffect::Any& effect)
{
    match(
        effect,
        [this](const SwitchEffect::FireHUD& hud) {
            if (onSwitch)
                onSwitch(hud.label);
        },
        [](const SwitchEffect::LogWarning& warning) { Log::warn(warning.message, warning.target); },
        [this](const SwitchEffect::InstallObservers&) { installObservers(); },
        [this](const SwitchEffect::RemoveObservers&) { removeObservers(); },
        [this](const SwitchEffect::StartBrowserPolling&) { startBrowserPolling(); },
        [this](const SwitchEffect::StopBrowserPolling&) { stopBrowserPolling(); },
        [this](const SwitchEffect::WithdrawHUD&) {
            if (onSwitchUndone)
                onSwitchUndone();
        });
}

void InputMethodSwitchCoordinator::installObservers()
{
    if (!appActivationToken_.isActive())
        appActivationToken_ = abilities_.applications.observeActivation(
            [this](const std::optional<RunningApplication>& application) {
                dispatch(SwitchEvent::AppActivated{
                    application ? application->bundleIdentifier : std::nullopt});
            });
    if (!inputSourceChangeToken_.isActive())
        inputSourceChangeToken_ = abilities_.inputSources.observeSelectionChanges(
            [this](SelectionCause cause) { dispatch(eventOf(cause)); });
    // An input method that starts later than the application in front may be what its rule is for.
    if (!enabledSourcesToken_.isActive())
        enabledSourcesToken_ = abilities_.inputSources.observeEnabledSourcesChanges(
            [this] { dispatch(SwitchEvent::EnabledSourcesChanged{}); });
    if (!rulesToken_.isActive())
        rulesToken_ = store_.config()
                          .stream()
                          .map(&InputMethodConfig::rules)
                          .withoutRepeats()
                          .subscribe([this](const std::vector<InputMethodRule>& rules) {
                              obstacles_.checkApplications(rules);
                          });
}

void InputMethodSwitchCoordinator::removeObservers()
{
    appActivationToken_.reset();
    inputSourceChangeToken_.reset();
    enabledSourcesToken_.reset();
    rulesToken_.reset();
}

void InputMethodSwitchCoordinator::startBrowserPolling()
{
    if (browserPollTimer_.isActive())
        return;
    browserPollTimer_ = abilities_.mainThread.every(browserPollInterval, [this] { tick(); });
    // Where pages are read beside the main thread, a page that has just been read need not wait for
    // the next tick.
    browserPageToken_ = abilities_.browserPages.observeChanges([this] { tick(); });
}

void InputMethodSwitchCoordinator::stopBrowserPolling()
{
    browserPollTimer_.reset();
    browserPageToken_.reset();
}

void InputMethodSwitchCoordinator::tick()
{
    dispatch(SwitchEvent::BrowserContextTick{browserHost(state_.frontmostBundleID)});
}

SwitchEnvironment InputMethodSwitchCoordinator::environment()
{
    const auto frontmostBundleID = [this]() -> std::optional<std::string> {
        const auto frontmost = abilities_.applications.frontmost();
        return frontmost ? frontmost->bundleIdentifier : std::nullopt;
    };
    const TextInputSourceService sources(abilities_.inputSources);
    SwitchEnvironment environment;
    environment.now = [this] { return abilities_.clock.now(); };
    environment.currentInputSourceID = [sources]() -> std::optional<std::string> {
        const auto source = sources.current();
        return source ? std::optional(source->id) : std::nullopt;
    };
    environment.currentInputSourceLocalizedName = [sources]() -> std::optional<std::string> {
        const auto source = sources.current();
        return source ? std::optional(source->localizedName) : std::nullopt;
    };
    environment.selectInputSource = [this, sources](const std::string& id) {
        const bool isSelected = sources.selectInputSource(id);
        if (!isSelected)
            obstacles_.checkSource(id);
        return isSelected;
    };
    environment.isSupportedBrowser = [](const std::optional<std::string>& bundleID) {
        return bundleID && BrowserURLProvider::isSupported(*bundleID);
    };
    environment.currentFrontmostBundleID = frontmostBundleID;
    environment.appIdentifier
        = [this](const std::optional<std::string>& bundleID) { return appIdentifier(bundleID); };
    environment.currentBrowserHost
        = [this](const std::optional<std::string>& bundleID) { return browserHost(bundleID); };
    environment.systemTime = [this] { return abilities_.clock.now(); };
    environment.whyUndone = [this] { return abilities_.inputSources.whyUndone(); };
    environment.noteSwitch
        = [this](const InputMethodSwitchDecision& decision) { noteSwitch(decision); };
    environment.noteAgreement = [this](const InputMethodSwitchDecision& decision) {
        reasons_.noteAgreement(decision, smartStore_.config().value(), abilities_.clock.now());
    };
    return environment;
}

void InputMethodSwitchCoordinator::noteSwitch(const InputMethodSwitchDecision& decision)
{
    Log::info("Selected " + description(decision), logCategory::inputMethod);
    reasons_.noteSwitch(decision, smartStore_.config().value(), abilities_.clock.now());
}

std::optional<AppIdentifier> InputMethodSwitchCoordinator::appIdentifier(
    const std::optional<std::string>& bundleID) const
{
    if (!bundleID)
        return {};
    const auto frontmost = abilities_.applications.frontmost();
    if (frontmost && frontmost->bundleIdentifier == bundleID)
        return identifierOf(*frontmost, *bundleID, abilities_);
    for (const auto& application : abilities_.applications.running())
        if (application.bundleIdentifier == bundleID)
            return identifierOf(application, *bundleID, abilities_);
    return AppIdentifier{*bundleID, *bundleID, {}};
}

std::optional<std::string> InputMethodSwitchCoordinator::browserHost(
    const std::optional<std::string>& bundleID) const
{
    return BrowserURLProvider::currentHost(bundleID, abilities_.browserPages);
}

} // namespace brindlex
