#pragma once

#include "desktop/DesktopRecord.h"
#include "desktop/PlayedHand.h"
#include "support/windows/TypingWindow.h"

#include <string>
#include <vector>

namespace brindlex {

/// A desktop with a window manager that does all that window managers do with the mouse, two
/// windows that log their input and a terminal, whose every state a test writes down, to compare it
/// with the same on another desktop.
class RecordedDesk {
public:
    RecordedDesk();

    /// Writes down what there is, under a heading, once it no longer changes: the window in front,
    /// where the windows are, what they got, what is held, and the text that is selected.
    void note(const std::string& heading);
    /// All that was noted, one line for each thing.
    const std::string& record() const { return record_->text(); }

    /// Waits until the terminal has got exactly this text, or until there is this line to note.
    /// What never comes shows in the next note.
    void waitForTyped(const std::string& text) const;
    void waitForLine(const std::string& line) const { record_->waitForLine(line); }

    MouseDesk desk;
    PlayedHand hand{desk};
    EventLogWindow one{"One", {100, 100, 300, 200}};
    EventLogWindow two{"Two", {300, 250, 300, 200}};
    TypingWindow terminal{desk.windows, "Terminal", {"-geometry", "40x10+750+100"}};

private:
    std::string state();
    /// Frames, menus and all else, from the lowest to the topmost.
    std::vector<ScreenArea> windowsOnScreen() const;

    std::optional<DesktopRecord> record_;
};

} // namespace brindlex
