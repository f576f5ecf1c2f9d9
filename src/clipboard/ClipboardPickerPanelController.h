#pragma once

#include "clipboard/ClipboardPicker.h"
#include "platform/KeyablePanel.h"
#include "platform/MainThread.h"
#include "platform/ProgramInstances.h"
#include "platform/RunningApplications.h"
#include "platform/ScreenReading.h"

#include <functional>
#include <memory>

namespace brindlex {

/// Shows the picker in a panel that takes the keys from nobody's application.
///
///     never built ──warmUp──▶ warming ──next turn──▶ hidden
///          │                     │                   │   ▲
///          │                    show              show   │ a selection, a dismissal
///          │                     ▼                   ▼   │
///          └────────show──────────────────────────▶ visible ⟲ show
///
/// A dismissal comes of the loss of the keys unless a preview has them, of a press outside, of
/// another application that comes to the front, and of the user. The panel is built once and kept;
/// each showing has a picker of its own. Main thread only.
class ClipboardPickerPanelController {
public:
    /// Makes a view of the picker the content of the panel in place of the one before, lays it out
    /// and returns the size that it wants. The view keeps the picker.
    using Hosting = std::function<Size(const std::shared_ptr<ClipboardPicker>& picker)>;

    /// What the controller works with, which outlives it.
    struct Abilities {
        KeyablePanel& panel;
        const ScreenReading& screens;
        RunningApplications& applications;
        const ProgramInstances& instances;
        MainThread& mainThread;
    };

    ClipboardPickerPanelController(
        const Abilities& abilities, const ClipboardPicker::Parts& parts, Hosting host);
    ClipboardPickerPanelController(const ClipboardPickerPanelController&) = delete;
    ClipboardPickerPanelController& operator=(const ClipboardPickerPanelController&) = delete;

    /// Shows the history anew, also while it is shown.
    ///
    /// Of the outcomes comes one at the most, once the panel has gone; none of a showing that
    /// another one replaces.
    void show(ClipboardPicker::Outcomes outcomes);

    /// Builds the panel out of sight, so that it comes fast when it is shown for the first time. Of
    /// a panel that has been built nothing is done.
    void warmUp();

private:
    Size host(ClipboardPicker::Outcomes outcomes);
    ClipboardPicker::Outcomes hidingBefore(ClipboardPicker::Outcomes outcomes);
    void place(Size size);
    void finishWarmUp();
    void fadeInSoon();
    void hide();
    void dismiss();

    Abilities abilities_;
    ClipboardPicker::Parts parts_;
    Hosting host_;
    std::shared_ptr<ClipboardPicker> picker_;
    std::function<void()> onDismiss_;
    bool isBuilt_ = false;
    Subscription warming_;
    Subscription fade_;
    Subscription keyObserver_;
    Subscription quickLookCloseObserver_;
    Subscription workspaceActivationObserver_;
    Subscription outsideClickMonitor_;
};

} // namespace brindlex
