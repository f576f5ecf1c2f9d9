#pragma once

#include "tour/TourDesktop.h"
#include "tour/TourReport.h"

#include <filesystem>

namespace brindlex {

/// Plays the tour from the start of the program to its end, and leaves a picture of each step.
void playTour(TourDesktop& desk, TourReport& report, const std::filesystem::path& pictures);

} // namespace brindlex
