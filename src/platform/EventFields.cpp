#include "platform/EventFields.h"

#include "foundation/FatalError.h"

#include <algorithm>

namespace brindlex {

EventFields::EventFields(std::initializer_list<Entry> entries)
{
    for (const auto& entry : entries)
        set(entry.field, entry.value);
}

std::int64_t EventFields::value(EventField field) const
{
    for (const auto& entry : entries())
        if (entry.field == field)
            return entry.value;
    return 0;
}

void EventFields::set(EventField field, std::int64_t value)
{
    const auto end = entries_.begin() + static_cast<std::ptrdiff_t>(count_);
    const auto found = std::find_if(
        entries_.begin(), end, [&](const Entry& entry) { return entry.field == field; });
    if (found == entries_.end())
        fatalError("An event has no room for another field");
    if (found == end)
        ++count_;
    *found = {field, value};
}

bool EventFields::operator==(const EventFields& other) const
{
    return std::ranges::equal(entries(), other.entries());
}

} // namespace brindlex
