#pragma once

#include "foundation/Geometry.h"
#include "foundation/Subscription.h"

#include <functional>

namespace brindlex {

/// A floating window without a frame that takes the keys and leaves the application in front where
/// it is: `RunningApplications` names the same one before, while and after the panel has the keys.
///
/// It stands over all ordinary windows, on every desktop and beside applications in full screen.
/// Each operation does nothing where the state is the wanted one already. Main thread only.
class KeyablePanel {
public:
    using Handler = std::function<void()>;

    virtual ~KeyablePanel() = default;

    /// Whether it is among the windows on the screen, however transparent.
    virtual bool isVisible() const = 0;

    /// 0 for a panel that nobody sees and that takes no clicks, 1 for a solid one; what a fade has
    /// reached while one is under way.
    virtual double alpha() const = 0;

    /// Ends a fade.
    virtual void setAlpha(double alpha) = 0;

    virtual Rect frame() const = 0;
    virtual void setFrame(const Rect& frame) = 0;

    /// Puts the panel on the screen, and leaves the keys where they are.
    virtual void orderFront() = 0;

    /// Puts the panel in front of all windows, whichever application is active, and gives it the
    /// keys.
    virtual void makeKeyAndOrderFront() = 0;

    /// Takes the panel from the screen and ends a fade; the keys go back to where they came from.
    virtual void orderOut() = 0;

    /// Draws at once what has not been drawn yet.
    virtual void displayIfNeeded() = 0;

    /// Brings the alpha to 1 within a moment, from what it is.
    virtual void fadeIn() = 0;

    /// Notifies each time the visible panel has had the keys and has them no more; not of what
    /// `orderOut` does.
    virtual Subscription observeDidResignKey(Handler handler) = 0;

    /// Notifies of each press of a mouse button on anything but the windows of this program, while
    /// the panel is visible; the press goes to what it meets. May be ended from inside the handler.
    virtual Subscription observePressOutside(Handler handler) = 0;
};

} // namespace brindlex
