#include "mouse/MouseResizeDragDecision.h"

#include "mouse/FixedNumber.h"

namespace brindlex {

std::string MouseResizeDragDecision::description() const
{
    return std::string("decision=") + (shouldBypass ? "bypass" : "gesture") + " reason=" + reason
        + " point=" + oneDecimal(point) + " cursor=" + cursorSummary + " ax=" + accessibilitySummary
        + " windowEdge=" + (windowEdge ? "true" : "false");
}

} // namespace brindlex
