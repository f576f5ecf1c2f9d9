#pragma once

#include "fuzz/FuzzTarget.h"

#include "foundation/JsonSameness.h"
#include "preferences/UserDefaultsStorageBox.h"

namespace brindlex {

/// Reads the text as a preference of the type. What can be read is written and read again, and has
/// to be the same.
template <typename Record>
void checkStoredRecord(std::string_view text)
{
    using Box = UserDefaultsStorageBox<Record>;
    const auto box = Box::fromRawValue(text);
    if (!box)
        return;
    const auto stored = box->rawValue();
    const auto again = Box::fromRawValue(stored);
    require(again.has_value(), "what was stored can be read");
    require(hasSameJson(again->value, box->value), "and is the same");
    require(again->rawValue() == stored, "also to the letter");
}

} // namespace brindlex
