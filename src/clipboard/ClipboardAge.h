#pragma once

#include "foundation/Date.h"

#include <cstdint>

namespace brindlex {

/// How long ago something was copied, as people say it: whole units of the largest kind of which
/// there is one.
struct ClipboardAge {
    enum class Unit { seconds, minutes, hours, days };

    Unit unit = Unit::seconds;
    std::int64_t count = 0;

    bool operator==(const ClipboardAge&) const = default;
};

/// The age at a time. What is later than that, because the clock was set, and a date that is no
/// number are no seconds old.
ClipboardAge clipboardAge(Date copied, Date now);

} // namespace brindlex
