#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <functional>
#include <string>

namespace brindlex {

/// Listens, with one connection of its own, for a property of a window and for the keyboard group.
class GroupWitness {
public:
    GroupWitness(xcb_window_t window, const std::string& property);
    ~GroupWitness();
    GroupWitness(const GroupWitness&) = delete;
    GroupWitness& operator=(const GroupWitness&) = delete;

    /// The milliseconds between the next change of the property after which `counts` holds and the
    /// change of the group that follows it; negative when none follows within the time. A group
    /// that changes first makes 0.
    double nextSwitch(const std::function<bool()>& counts, std::chrono::milliseconds time);

private:
    xcb_connection_t* connection_;
    xcb_atom_t property_ = 0;
    int xkbEvent_ = 0;
};

} // namespace brindlex
