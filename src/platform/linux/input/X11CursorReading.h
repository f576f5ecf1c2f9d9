#pragma once

#include "platform/CursorReading.h"
#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// The cursor as the X server shows it (XFixes), recognised by its name.
///
/// Toolkits give their cursors the names of the cursor themes; a cursor without one, as programs
/// from before the themes have, has no identity and is compared by its picture. What this program
/// itself has set is not told apart.
class X11CursorReading : public CursorReading {
public:
    explicit X11CursorReading(X11Connection& connection);

    std::optional<CursorImage> currentSystem() override;
    std::optional<CursorImage> current() override { return std::nullopt; }

    /// Each look stands for one name that themes give the cursor and has that identity alone; a
    /// picture belongs to a theme, and is not needed where there is a name.
    std::vector<CursorImage> looks(std::string_view name) override;

private:
    X11Connection& connection_;
    bool isAvailable_ = false;
};

} // namespace brindlex
