#pragma once

#include "shell/DockIconPolicyResult.h"

namespace brindlex {

/// What becomes of the main window when the dock icon has come or gone.
enum class DockResultReaction {
    none,
    /// It is shown, as when somebody asks for it.
    show,
    /// It comes to the front again: a program that leaves the dock loses its place there.
    raiseAgain,
};

/// What is known when the dock icon has come or gone.
struct DockResultSituation {
    DockIconPolicyResult result{};
    /// Whether somebody asked for the change and waits for the window.
    bool isExplicit = false;
    bool isMainWindowClosedByUser = false;
    bool isMainWindowVisible = false;
};

DockResultReaction dockResultReaction(const DockResultSituation& situation);

} // namespace brindlex
