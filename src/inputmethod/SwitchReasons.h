#pragma once

#include "foundation/Date.h"
#include "foundation/Observable.h"
#include "inputmethod/SmartInputMethodConfig.h"
#include "inputmethod/SwitchDecision.h"
#include "inputmethod/SwitchEvent.h"
#include "inputmethod/SwitchState.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>

namespace brindlex {

/// Why an application has its input source: what was decided for it last.
struct SwitchReason {
    InputMethodSwitchDecision decision{};
    Date usedAt{};
    /// Of a learned rule, how many changes by hand it was made from; else none.
    std::size_t changes = 0;
    /// When the user changed the source by hand, for as long as that keeps the rules from it.
    std::optional<Date> overriddenAt{};

    bool operator==(const SwitchReason&) const = default;
};

/// Remembers why each application has its input source, until the end of the process and for the
/// 200 applications that a rule decided for last. Main thread only.
class SwitchReasons {
public:
    static constexpr std::size_t mostApplications = 200;

    using ByApplication = std::map<std::string, SwitchReason>;

    /// Changes only where it says something else.
    const Observable<ByApplication>& byApplication() const { return byApplication_; }

    /// Nothing where no rule has decided for the application.
    std::optional<SwitchReason> reason(const std::string& bundleID) const;

    /// Takes note of a switch that was made, with what was learned until then. It shows with the
    /// event that brought it about.
    void noteSwitch(const InputMethodSwitchDecision& decision,
        const SmartInputMethodConfig& smartConfig, Date now);

    /// Takes note of a decision for the source that is selected already.
    void noteAgreement(const InputMethodSwitchDecision& decision,
        const SmartInputMethodConfig& smartConfig, Date now);

    /// Takes note of what an event has made of the state.
    void noteEvent(const SwitchEvent::Any& event, const SwitchState& state, Date now);

private:
    void keep(ByApplication reasons);

    Observable<ByApplication> byApplication_{ByApplication()};
    /// The application of the last switch, which alone can be overridden.
    std::string lastApplication_;
    std::optional<SwitchReason> noted_;
    /// When the selected source changed last.
    Date changedAt_{};
};

} // namespace brindlex
