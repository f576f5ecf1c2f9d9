#pragma once

#include "TargetWindow.h"
#include "desktop/MouseDesk.h"

namespace brindlex {

/// Each prints the table of one figure: the program beside its peers on the desk, one after the
/// other and each alone. Peers that are not installed are said to be so.

/// From a press of the middle button until its command has run.
void measureActions(MouseDesk& desk);

/// From a notch of the wheel until the first wheel event at the application.
void measureWheels(MouseDesk& desk, const TargetWindow& target);

/// The rhythm and the length of a smooth scroll.
void measureSmoothness(MouseDesk& desk, const TargetWindow& target);

/// Processor time at 1,000 motions a second.
void measureMotions(MouseDesk& desk, const TargetWindow& target);

} // namespace brindlex
