#pragma once

#include "platform/PressLedger.h"
#include "platform/linux/input/X11LentButtons.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <map>
#include <utility>

namespace brindlex {

/// Plays buttons, keys and motion to the applications as if a device had sent them (XTEST). In the
/// order of the calls; nothing is waited for but a reply of the server for a button beyond the
/// tenth.
class X11Injection {
public:
    using Kind = PressLedger::Kind;

    explicit X11Injection(X11Connection& connection);

    /// The pointer on which XTEST plays; without it buttons beyond the tenth are lost.
    void setPointer(std::uint16_t pointer) { lentButtons_.setPointer(pointer); }

    /// A button or key that several hold is down until the last of them lets go.
    void press(Kind kind, std::uint8_t code);

    /// Also for what was pressed before by other means.
    void release(Kind kind, std::uint8_t code);

    /// Releases what was pressed here; nothing else.
    void releaseAll();
    bool holdsNothing() const { return held_.empty(); }
    bool holds(Kind kind, std::uint8_t code) const { return held_.contains({kind, code}); }

    void turnWheel(std::uint8_t button);
    void moveBy(int x, int y);
    void moveTo(int x, int y);

    /// Gives the cursor into the hands of what is played here, where no floating device moves it.
    void takeCursor() { moveBy(0, 0); }

    /// Presses and releases past the counting, for a moment in which nothing else happens.
    void play(Kind kind, std::uint8_t code, bool isPress);

private:
    void playMotion(bool isRelative, int x, int y);

    X11Connection& connection_;
    std::map<std::pair<Kind, std::uint8_t>, int> held_;
    X11LentButtons lentButtons_;
};

} // namespace brindlex
