#pragma once

#include "foundation/Observable.h"

namespace brindlex {

/// Whether other programs tell the program what they show, which the rules for websites need of
/// browsers. Main thread only.
class AutomationPermission {
public:
    enum class State {
        /// Not asked yet, or the system says so for each program only when it is used.
        unknown,
        /// No program tells anything.
        off,
        /// Programs that are started from now on do.
        on,
        /// The system has nothing by which programs could.
        unavailable,
    };

    virtual ~AutomationPermission() = default;

    /// As it was last read.
    virtual const Observable<State>& state() const = 0;

    /// Reads the state anew; it is set when the system has replied, also when it is the same.
    virtual void refresh() = 0;

    /// Does what makes the state on, for this session of the user's and those to come.
    virtual void request() = 0;
};

} // namespace brindlex
