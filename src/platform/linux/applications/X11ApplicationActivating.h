#pragma once

#include "platform/ApplicationActivating.h"
#include "platform/RunningApplications.h"
#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// Asks the window manager for the topmost window of an application, as a pager does. Main thread
/// only; costs some round trips unless the application is in front.
class X11ApplicationActivating : public ApplicationActivating {
public:
    X11ApplicationActivating(X11Connection& connection, const RunningApplications& applications)
        : connection_(connection), applications_(applications)
    {
    }

    void activate(ProcessIdentity application) override;

private:
    X11Connection& connection_;
    const RunningApplications& applications_;
};

} // namespace brindlex
