#include "shell/DockResultReaction.h"

namespace brindlex {

DockResultReaction dockResultReaction(const DockResultSituation& situation)
{
    if (!situation.result.didChange)
        return DockResultReaction::none;
    if (situation.result.showsDockIcon)
        return situation.isExplicit ? DockResultReaction::show : DockResultReaction::none;
    if (situation.isMainWindowClosedByUser || !situation.isMainWindowVisible)
        return DockResultReaction::none;
    return DockResultReaction::raiseAgain;
}

} // namespace brindlex
