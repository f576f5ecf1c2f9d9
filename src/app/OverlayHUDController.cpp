#include "app/OverlayHUDController.h"

namespace brindlex {

OverlayHUDController::OverlayHUDController(
    OverlayPanel& panel, MainThread& mainThread, SessionLock& lock)
    : panel_(panel), mainThread_(mainThread), lock_(lock)
{
}

void OverlayHUDController::show(const std::string& text, Seconds duration)
{
    if (lock_.isLocked())
        return;
    hideWorkItem_.reset();
    panel_.show(text);
    hideWorkItem_ = mainThread_.after(duration, [this] { panel_.fadeOut(); });
}

void OverlayHUDController::hide()
{
    hideWorkItem_.reset();
    panel_.fadeOut();
}

} // namespace brindlex
