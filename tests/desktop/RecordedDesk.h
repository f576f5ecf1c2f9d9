#pragma once

#include "desktop/MouseDesk.h"
#include "support/windows/TypingWindow.h"

#include <functional>
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
    const std::string& record() const { return record_; }

    void movePointer(int x, int y);
    /// Presses a button, moves by ten equal steps, as fast as what is dragged follows, and lets go.
    void drag(int button, int x, int y);
    void click(int button, int times = 1);
    void stroke(std::uint8_t key);

    /// Waits until the terminal has got exactly this text, or until there is this line to note.
    /// What never comes shows in the next note.
    void waitForTyped(const std::string& text) const;
    void waitForLine(const std::string& line);

    MouseDesk desk;
    EventLogWindow one{"One", {100, 100, 300, 200}};
    EventLogWindow two{"Two", {300, 250, 300, 200}};
    TypingWindow terminal{desk.windows, "Terminal", {"-geometry", "40x10+750+100"}};

private:
    std::string state();
    void waitUntilStill() const;
    /// Frames, menus and all else, from the lowest to the topmost.
    std::vector<ScreenArea> windowsOnScreen() const;
    std::string titleOfActive() const;
    std::string selectedText() const;

    std::string record_;
};

} // namespace brindlex
