#pragma once

#include "foundation/Geometry.h"

#include <string>

namespace brindlex {

/// The number with one digit after the point, whatever the user's language: "8.0".
std::string oneDecimal(double number);

/// The point as "8.0,16.5".
std::string oneDecimal(Point point);

} // namespace brindlex
