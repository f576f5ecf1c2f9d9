#pragma once

#include "applications/AppIdentifierLoader.h"
#include "inputmethod/InputMethodConfigStore.h"
#include "inputmethod/SmartInputMethodConfigStore.h"
#include "inputmethod/SwitchExplanation.h"
#include "inputmethod/SwitchReasons.h"
#include "inputmethod/TextInputSourceService.h"
#include "platform/Clock.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What a row of the statistics says of its application.
enum class SmartInputMethodStatus { active, disabled, learning };

SmartInputMethodStatus statusOf(const SmartInputMethodAppStats& stats);

/// "80%".
std::string matchText(const SmartInputMethodAppStats& stats);

/// What the settings of input-source switching do, without their screen: every change is stored at
/// once. Main thread only.
class InputMethodSettings {
public:
    InputMethodSettings(InputMethodConfigStore& store, SmartInputMethodConfigStore& smartStore,
        const SwitchReasons& reasons, const TextInputSourceService& sources,
        const AppIdentifierLoader& loader, const Clock& clock);

    const InputMethodConfig& config() const { return store_.config().value(); }
    const SmartInputMethodConfig& smartConfig() const { return smartStore_.config().value(); }
    /// The sources that a rule can name.
    const std::vector<TextInputSource>& availableSources() const { return availableSources_; }
    /// Asks for the sources again.
    void refreshSources() { availableSources_ = sources_.availableSources(); }
    bool isMissing(const std::string& inputSourceID) const;
    /// Why the application has its source, and the time by which to say when that was.
    SwitchExplanation::Any why(const std::string& bundleID) const;
    Date now() const { return clock_.now(); }

    /// Applies changes that have no operation of their own below.
    void change(const std::function<void(InputMethodConfig&)>& change);
    void changeSmart(const std::function<void(SmartInputMethodConfig&)>& change);

    /// Adds a rule for the application at the path, with the source that is selected now, else the
    /// first that there is. Nothing changes for an application that has a rule, nor, with a line in
    /// the log, where the application cannot be read or there is no source. Returns the rule's
    /// identity.
    std::optional<Uuid> addAppRule(const std::filesystem::path& bundlePath);
    void setAppRuleSource(const Uuid& id, const std::string& inputSourceID);
    void removeAppRule(const Uuid& id);
    /// Brings a removed rule back to its place, unless its application has another one by now.
    void restoreAppRule(const InputMethodRule& rule, std::size_t index);

    /// Adds a rule for the website that the text names, with the same source. Nothing changes for a
    /// text that names none, a website that has a rule, and where there is no source.
    std::optional<Uuid> addDomainRule(const std::string& text);
    void setDomainRuleSource(const Uuid& id, const std::string& inputSourceID);
    void removeDomainRule(const Uuid& id);
    /// Brings a removed rule back to its place, unless its website has another one by now.
    void restoreDomainRule(const DomainInputMethodRule& rule, std::size_t index);

    /// The statistics that are shown: those of the applications within the limit, in list order.
    std::vector<SmartInputMethodAppStats> displayedStats() const;
    void setDisabled(const std::string& bundleID, bool isDisabled);
    /// Takes the identifier by value, as does deleteStats: it may be read from what is replaced.
    void clearStats(Uuid id);
    /// Returns what brings them back to their place, with the switches that they were made from;
    /// nothing comes back of an application of which something was learned since.
    std::function<void()> deleteStats(Uuid id);

private:
    std::optional<std::string> sourceOfNewRule() const;
    void restoreStats(const SmartInputMethodConfig& before, std::size_t index);

    InputMethodConfigStore& store_;
    SmartInputMethodConfigStore& smartStore_;
    const SwitchReasons& reasons_;
    const TextInputSourceService& sources_;
    const AppIdentifierLoader& loader_;
    const Clock& clock_;
    std::vector<TextInputSource> availableSources_;
};

} // namespace brindlex
