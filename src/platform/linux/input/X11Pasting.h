#pragma once

#include "foundation/Lifetime.h"
#include "platform/EventPosting.h"
#include "platform/Pasting.h"
#include "platform/linux/input/PasteWay.h"
#include "platform/linux/x11/X11Connection.h"

#include <functional>

namespace brindlex {

/// Types what the window in front pastes by (see `PasteWay`), whatever modifiers a hand holds. Main
/// thread only; costs two round trips.
class X11Pasting : public Pasting {
public:
    /// Makes what the program has put on the pasteboard what is selected with the mouse, too, and
    /// calls back from the loop once it is.
    using SharingWithMouse = std::function<void(std::function<void()> isShared)>;

    X11Pasting(X11Connection& connection, EventPosting& posting, SharingWithMouse shareWithMouse);

    void postPaste() override;

private:
    PasteWay way() const;
    void post(const PasteWay& way);

    X11Connection& connection_;
    EventPosting& posting_;
    SharingWithMouse shareWithMouse_;
    Lifetime lifetime_;
};

} // namespace brindlex
