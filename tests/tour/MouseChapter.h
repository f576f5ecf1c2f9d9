#pragma once

#include "tour/TourReport.h"

namespace brindlex {

/// Plays the chapter of the tour about the mouse, on a desktop of its own with hardware that is
/// played: a gesture, a click that was none, a binding, the wheel, a switch of the desktop and the
/// list of windows. Only the superuser can play hardware; for others it says that the chapter is
/// left out.
void playMouseChapter(TourReport& report);

} // namespace brindlex
