#pragma once

#include "inputmethod/SwitchEvent.h"
#include "inputmethod/SwitchState.h"
#include "support/switching/SwitchComputer.h"
#include "support/switching/SwitchScenario.h"

#include <vector>

namespace brindlex {

/// Plays scenarios against the state machine alone, over a computer in memory.
class MemorySwitchExecutor : public SwitchScenarioExecutor {
public:
    void begin(const SwitchScenario& scenario) override;
    std::vector<SwitchScenarioOutcome> perform(const SwitchScenario::Step& step) override;

private:
    void passTimeUntil(Seconds time);
    void setTime(Seconds time);
    void dispatch(const SwitchEvent::Any& event);
    void set(const SwitchScenarioEvent::Set& setting);

    SwitchComputer computer_;
    InputMethodConfig config_;
    SmartInputMethodConfig smartConfig_;
    SwitchState state_;
    std::optional<Seconds> echoDelay_;
    Seconds time_ = 0;
    /// When the system will tell of selections, earliest first.
    std::vector<Seconds> echoes_;
    std::vector<SwitchScenarioOutcome> outcomes_;
};

} // namespace brindlex
