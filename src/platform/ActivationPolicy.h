#pragma once

namespace brindlex {

/// How the program stands among the others of the desktop.
enum class ActivationPolicy {
    /// Its windows stand where the user chooses among windows: in the task bar, in the switcher.
    regular,
    /// Its windows do not; they are ordinary windows otherwise.
    accessory,
};

/// Sets how the program stands among the others. Main thread only.
class ActivationPolicySetting {
public:
    virtual ~ActivationPolicySetting() = default;

    /// What was set last and the program can have; `regular` before anything was set.
    virtual ActivationPolicy activationPolicy() const = 0;

    /// Applies to all windows of the program, those that are open and those that will be. A desktop
    /// may take it late or not at all: `activationPolicy` says what holds.
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
};

} // namespace brindlex
