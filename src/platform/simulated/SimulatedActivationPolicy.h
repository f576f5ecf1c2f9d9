#pragma once

#include "platform/ActivationPolicy.h"
#include "platform/simulated/SimulatedJournal.h"

namespace brindlex {

/// A policy in memory, which a test can make come late or not at all.
class SimulatedActivationPolicy : public ActivationPolicySetting {
public:
    explicit SimulatedActivationPolicy(SimulatedJournal::Writer journal = {})
        : journal_(journal) { }

    ActivationPolicy activationPolicy() const override { return policy_; }
    void setActivationPolicy(ActivationPolicy policy) override
    {
        journal_.add(policy == ActivationPolicy::regular ? "policy regular" : "policy accessory");
        if (refusals_ > 0)
            --refusals_;
        else
            policy_ = policy;
    }

    /// The next settings have no effect.
    void refuse(int settings) { refusals_ = settings; }
    /// As the system may do by itself.
    void fallBackTo(ActivationPolicy policy) { policy_ = policy; }

private:
    SimulatedJournal::Writer journal_;
    ActivationPolicy policy_ = ActivationPolicy::regular;
    int refusals_ = 0;
};

} // namespace brindlex
