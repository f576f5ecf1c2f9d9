#pragma once

#include "foundation/Date.h"
#include "foundation/Subscription.h"
#include "platform/MainThread.h"
#include "platform/OverlayPanel.h"
#include "platform/SessionLock.h"

#include <string>

namespace brindlex {

/// Shows a short message in the middle of the screen for a moment.
///
/// A second message takes the place of the first, also while that fades, and stays for its own
/// whole time. Nothing is shown at a locked session. Main thread only.
class OverlayHUDController {
public:
    OverlayHUDController(OverlayPanel& panel, MainThread& mainThread, SessionLock& lock);

    /// Shows the text now and lets it fade out after `duration`.
    void show(const std::string& text, Seconds duration);

    /// Lets what is shown fade out now.
    void hide();

private:
    OverlayPanel& panel_;
    MainThread& mainThread_;
    SessionLock& lock_;
    Subscription hideWorkItem_;
};

} // namespace brindlex
