#pragma once

#include "foundation/Subscription.h"
#include "platform/MainThread.h"
#include "platform/ProgramWindows.h"
#include "shell/PresentationTask.h"

#include <functional>
#include <map>
#include <string>

namespace brindlex {

/// Brings the windows beside the main one before the user's eyes, each over the same tries as the
/// main window. Main thread only.
class AuxiliaryWindowPresenter {
public:
    /// `reapplyDockPolicy` runs each time such a window is closed.
    AuxiliaryWindowPresenter(
        ProgramWindows& windows, MainThread& mainThread, std::function<void()> reapplyDockPolicy);

    /// Shows the window of the scene, opening it if need be.
    void present(const std::string& id);

private:
    bool bringForward(const std::string& id);
    void noteClosing(const std::string& id);

    ProgramWindows& windows_;
    MainThread& mainThread_;
    const std::function<void()> reapplyDockPolicy_;
    std::map<std::string, PresentationTask> pending_;
    Subscription windowClosing_;
};

} // namespace brindlex
