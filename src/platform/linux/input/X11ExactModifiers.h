#pragma once

#include "platform/linux/input/ModifierChange.h"
#include "platform/linux/input/X11TapSession.h"

#include <cstdint>

namespace brindlex {

/// Holds exactly the given modifiers for the applications, whatever a hand holds, until `restore`.
///
/// Nothing is played where these are held already. While no restore has come, the hand's keys still
/// count for `restore`: what has been let go meanwhile stays up.
class X11ExactModifiers {
public:
    /// Sees to it that exactly the modifiers of the flags are held.
    void hold(X11TapSession& session, std::uint64_t flags);

    /// Gives back what a hand holds.
    void restore(X11TapSession& session);

    /// Forgets all that was played, as its connection is gone.
    void forget() { *this = {}; }

    bool isHolding() const { return isHolding_; }
    std::uint64_t flags() const { return flags_; }

private:
    void keepCompany(X11TapSession& session) const;
    void setCapsLock(X11TapSession& session, bool isOn) const;

    bool isHolding_ = false;
    std::uint64_t flags_ = 0;
    ModifierChange change_;
    /// Whether Alt or Super was released in the place of a hand.
    bool hasLoneModifiers_ = false;
};

} // namespace brindlex
