#include "platform/linux/inputsources/SelectionCauses.h"

#include "platform/InputSourceIdentifiers.h"

#include <utility>

namespace brindlex {

void SelectionCauses::selected(const std::string& id, Time now)
{
    selected_ = id;
    isUnseen_ = true;
    settlingUntil_ = selectionSettlesUntil_ = now + settleTime;
}

bool SelectionCauses::isSelected(const std::string& current) const
{
    return selected_ && isSameSource(*selected_, current);
}

SelectionCause SelectionCauses::changed(const std::string& current, SelectionCause hint, Time now)
{
    isUnseen_ = false;
    if (isSelected(current))
        return SelectionCause::choice;
    const bool wasSelected = std::exchange(selected_, std::nullopt).has_value();
    if (hint != SelectionCause::choice)
        return hint;
    if (!settlingUntil_ || now > *settlingUntil_)
        return SelectionCause::choice;
    return wasSelected && now <= selectionSettlesUntil_ ? SelectionCause::undoing
                                                        : SelectionCause::place;
}

} // namespace brindlex
