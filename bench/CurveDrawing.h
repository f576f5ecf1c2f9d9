#pragma once

#include "Curves.h"

#include <string>

namespace brindlex {

/// The diagrams side by side, as a picture in SVG.
std::string drawing(const std::vector<Diagram>& diagrams);

} // namespace brindlex
