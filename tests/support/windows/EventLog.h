#pragma once

#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace brindlex {

/// The input of a window, written down in words.
///
/// Each line is one event: `press 1`, `release 1`, `key 38 down`, `key 38 up`, `focus out`,
/// `leave`, with the modifiers that were held behind it in brackets, as `key 38 down
/// (control)`. What the pointer does is counted apart.
class EventLog {
public:
    const std::vector<std::string>& lines() const { return lines_; }
    /// How often the keymap was said to have changed.
    int keymaps() const { return keymaps_; }
    /// How many motions came, and how many of them with a button held.
    int motions() const { return motions_; }
    int drags() const { return drags_; }

    /// Writes down an event of the core protocol or of the second version of the input extension.
    void note(const xcb_generic_event_t& event);

private:
    void noteInput2(const xcb_generic_event_t& event);

    std::vector<std::string> lines_;
    int keymaps_ = 0;
    int motions_ = 0;
    int drags_ = 0;
};

} // namespace brindlex
