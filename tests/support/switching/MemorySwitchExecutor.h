#pragma once

#include "inputmethod/SwitchEvent.h"
#include "inputmethod/SwitchState.h"
#include "support/switching/SwitchComputer.h"
#include "support/switching/SwitchScenario.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Plays scenarios against the state machine alone, over a computer in memory.
///
/// Of a scenario that the desktop plays too, the effects that nobody outside could see are left
/// out.
class MemorySwitchExecutor : public SwitchScenarioExecutor {
public:
    void begin(const SwitchScenario& scenario) override;
    std::vector<std::string> perform(const SwitchScenario::Step& step) override;

private:
    /// What went out, and whether somebody outside the program could see it.
    struct Outcome {
        std::string text{};
        bool isVisible = true;
    };

    void carryOut(const SwitchScenarioStep::Any& step);
    std::vector<std::string> takeEffects();
    void passTimeUntil(Seconds time);
    void setTime(Seconds time);
    void dispatch(const SwitchEvent::Any& event);
    void set(ScenarioWords setting);

    SwitchComputer computer_;
    InputMethodConfig config_;
    SmartInputMethodConfig smartConfig_;
    SwitchState state_;
    std::optional<Seconds> echoDelay_;
    bool showsAll_ = false;
    Seconds time_ = 0;
    /// When the system will notify of selections, earliest first.
    std::vector<Seconds> echoes_;
    std::vector<Outcome> outcomes_;
};

} // namespace brindlex
