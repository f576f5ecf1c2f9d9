#include "platform/linux/inputsources/SelectionCauses.h"

#include "platform/InputSourceIdentifiers.h"

#include <utility>

namespace brindlex {

void SelectionCauses::selected(
    const std::string& id, const std::optional<std::string>& before, Time now)
{
    selected_ = id;
    before_ = before;
    isUnseen_ = true;
    settlingUntil_ = selectionSettlesUntil_ = now + settleTime;
}

bool SelectionCauses::isSelected(const std::string& current) const
{
    return selected_ && isSameSource(*selected_, current);
}

bool SelectionCauses::isAsBefore(const std::string& current) const
{
    return before_ && isSameSource(*before_, current);
}

SelectionCause SelectionCauses::changed(const std::string& current, SelectionCause hint, Time now)
{
    isUnseen_ = false;
    if (isSelected(current))
        return SelectionCause::choice;
    const bool wasSelected = std::exchange(selected_, std::nullopt).has_value();
    const bool isPressed = !settlingUntil_;
    if (hint == SelectionCause::undoing && isPressed && wasSelected && !isAsBefore(current))
        return SelectionCause::choice;
    if (hint != SelectionCause::choice)
        return hint;
    if (!settlingUntil_ || now > *settlingUntil_)
        return SelectionCause::choice;
    return wasSelected && now <= selectionSettlesUntil_ ? SelectionCause::undoing
                                                        : SelectionCause::place;
}

} // namespace brindlex
