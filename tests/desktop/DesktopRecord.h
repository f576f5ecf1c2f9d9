#pragma once

#include "desktop/MouseDesk.h"

#include <functional>
#include <string>

namespace brindlex {

/// What a test writes down of a desktop, state by state, to compare it with the same on another
/// desktop.
class DesktopRecord {
public:
    /// `state` gives what there is, a line for each thing.
    DesktopRecord(const MouseDesk& desk, std::function<std::string()> state);

    /// Writes down what there is, under a heading, once it no longer changes.
    void note(const std::string& heading);
    /// All that was noted.
    const std::string& text() const { return text_; }

    /// Waits until there is this line to note. What never comes shows in the next note.
    void waitForLine(const std::string& line) const;

private:
    const MouseDesk& desk_;
    std::function<std::string()> state_;
    std::string text_;
};

std::string textOf(const ScreenArea& area);

/// The window in front, the desktop that is shown and the text that is selected, a line each.
std::string commonState(const MouseDesk& desk);

} // namespace brindlex
