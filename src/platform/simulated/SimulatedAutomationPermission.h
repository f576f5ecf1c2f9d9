#pragma once

#include "platform/AutomationPermission.h"
#include "platform/simulated/SimulatedJournal.h"

namespace brindlex {

/// Programs that tell what they show once they are asked to.
class SimulatedAutomationPermission : public AutomationPermission {
public:
    explicit SimulatedAutomationPermission(SimulatedJournal::Writer journal = {})
        : journal_(journal)
    {
    }

    const Observable<State>& state() const override { return state_; }
    void refresh() override { state_.set(system); }
    void request() override
    {
        journal_.add("request automation");
        system = State::on;
        refresh();
    }

    /// What the system replies with the next refresh.
    State system = State::unknown;

private:
    SimulatedJournal::Writer journal_;
    Observable<State> state_{State::unknown};
};

} // namespace brindlex
