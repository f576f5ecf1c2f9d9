#include "mouse/MouseCursorDiagnostic.h"

#include "mouse/FixedNumber.h"

namespace brindlex {

std::string MouseCursorDiagnosticItem::text() const
{
    const auto hotSpotText = hotSpot ? oneDecimal(*hotSpot) : "nil";
    const auto sizeText
        = imageSize ? oneDecimal(imageSize->width) + "x" + oneDecimal(imageSize->height) : "nil";
    const auto hashText = imageHash ? std::to_string(*imageHash) : "nil";
    return source + "{matchedName=" + matchedName.value_or("unknown") + " hotSpot=" + hotSpotText
        + " imageSize=" + sizeText + " imageHash=" + hashText + "}";
}

bool MouseCursorDiagnosticSnapshot::isCustomSystemCursor() const
{
    const auto isWhole = [](const MouseCursorDiagnosticItem& item) {
        return item.hotSpot.has_value() && item.imageSize.has_value();
    };
    return !isResizeCursor() && isWhole(currentSystem) && isWhole(current)
        && currentSystem != current;
}

std::string MouseCursorDiagnosticSnapshot::text() const
{
    return "currentSystem=" + currentSystem.text() + " current=" + current.text()
        + " customSystemCursor=" + (isCustomSystemCursor() ? "true" : "false");
}

} // namespace brindlex
