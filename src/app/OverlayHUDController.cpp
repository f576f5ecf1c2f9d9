#include "app/OverlayHUDController.h"

namespace brindlex {

OverlayHUDController::OverlayHUDController(OverlayPanel& panel, MainThread& mainThread)
    : panel_(panel), mainThread_(mainThread)
{
}

void OverlayHUDController::show(const std::string& text, Seconds duration)
{
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
