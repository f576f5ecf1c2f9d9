#pragma once

#include "platform/CursorReading.h"

#include <map>

namespace brindlex {

/// Cursors as they are set, and the named ones of the system.
class SimulatedCursor : public CursorReading {
public:
    std::optional<CursorImage> currentSystem() override { return shown; }
    std::optional<CursorImage> current() override { return own; }
    std::vector<CursorImage> looks(std::string_view name) override
    {
        const auto found = named.find(name);
        return found == named.end() ? std::vector<CursorImage>() : found->second;
    }

    /// The ordinary arrow.
    static CursorImage arrow() { return {1, {4, 4}, {24, 24}, "arrow"}; }

    std::optional<CursorImage> shown = arrow();
    std::optional<CursorImage> own = arrow();
    std::map<std::string, std::vector<CursorImage>, std::less<>> named{};
};

} // namespace brindlex
