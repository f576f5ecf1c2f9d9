#pragma once

#include "foundation/Geometry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// A mouse cursor as it looks.
struct CursorImage {
    /// Equal for two readings of one and the same cursor of the system; 0 for a cursor that cannot
    /// be recognised again.
    std::uint64_t identity = 0;
    Point hotSpot{};
    Size size{};
    /// The picture, in any form that is equal for equal pictures.
    std::string picture{};

    bool operator==(const CursorImage&) const = default;
};

/// The mouse cursor. Main thread only; no call waits for another program.
class CursorReading {
public:
    virtual ~CursorReading() = default;

    /// What the user sees; nothing when the system cannot say.
    virtual std::optional<CursorImage> currentSystem() = 0;

    /// What this program has set; nothing when it has set none.
    virtual std::optional<CursorImage> current() = 0;

    /// The system's cursor of a name such as "resizeLeftRight" or "columnResize"; several where it
    /// comes in several looks, none where the system has no such cursor.
    virtual std::vector<CursorImage> looks(std::string_view name) = 0;
};

} // namespace brindlex
