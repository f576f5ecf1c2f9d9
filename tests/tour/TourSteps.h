#pragma once

#include "tour/TourDesktop.h"
#include "tour/TourReport.h"

namespace brindlex {

/// Plays the tour from the start of the program to its end, and leaves a picture of each step.
void playTour(TourDesktop& desk, TourReport& report);

} // namespace brindlex
