#pragma once

#include "platform/KeyboardInputSources.h"

#include <chrono>
#include <optional>
#include <string>

namespace brindlex {

/// Whose doing a change of the selected input source was.
///
/// A desktop changes it by itself, too: it keeps one for each window and brings it back with the
/// window, or takes back what a program has selected. It does so soon afterwards. A person needs a
/// key or a button to choose, after that.
///
///     settled ──window in front, selection──▶ settling ──press, `settleTime`──▶ settled
///
/// The first of these rows that applies decides; "as before" is the source in force before the
/// selection, to which its refusal goes back, and "pressed" is after a press since:
///
///     change to               while      hint of the backend   cause
///     what was selected last  any time   any                   choice
///     another, not as before  pressed    undoing               choice
///     another                 any time   place, undoing        the hint
///     another                 settled    choice                choice
///     another                 settling   choice                undoing, when a selection settles
///     another                 settling   choice                place, when only a window does
class SelectionCauses {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// How long after its reason a desktop makes a change. Programs that keep a layout for each
    /// window take 50 ms, and shells that undo a selection up to 300 ms.
    static constexpr std::chrono::milliseconds settleTime{1000};

    void windowCameToFront(Time now) { settlingUntil_ = now + settleTime; }
    /// This program has selected a source, in the place of another if one was in force.
    void selected(const std::string& id, const std::optional<std::string>& before, Time now);
    /// A hand has pressed a key or a button.
    void pressed() { settlingUntil_.reset(); }

    /// Whether this source in force means that the last selection is lost before anybody has seen
    /// it in force.
    bool isLost(const std::string& current) const { return isUnseen_ && !isSelected(current); }

    /// Takes a change to that source, with what the backend knows of its cause.
    SelectionCause changed(const std::string& current, SelectionCause hint, Time now);

private:
    /// Whether the source is the one that was selected last, whatever its language is called.
    bool isSelected(const std::string& current) const;
    /// Whether the source is the one in force before the last selection.
    bool isAsBefore(const std::string& current) const;

    std::optional<Time> settlingUntil_;
    /// What this program has selected last, unless something else was in force since.
    std::optional<std::string> selected_;
    std::optional<std::string> before_;
    Time selectionSettlesUntil_{};
    bool isUnseen_ = false;
};

} // namespace brindlex
