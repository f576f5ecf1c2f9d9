#pragma once

#include "desktop/DesktopRecord.h"
#include "desktop/PlayedHand.h"
#include "support/applications/RealApplication.h"
#include "support/windows/TypingWindow.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// What users of a window manager press, where window managers differ as they are installed.
struct Customs {
    /// Held, it makes any point of a window one to drag it by, and `resizing` is the button that
    /// then resizes it.
    std::uint8_t dragging;
    int resizing;
    /// What the window manager leaves to others to bind.
    ModifierSet free;
    std::vector<std::uint8_t> nextDesktop{};
    std::vector<std::uint8_t> previousDesktop{};
    std::vector<std::uint8_t> showDesktop{};
    /// Habits that it has no part in by itself, without the other programs of its desktop.
    std::set<std::string> absent{};
};

Customs customsOf(WindowManager manager);

/// A desktop with a window manager as its package installs it, an application of a toolkit that
/// people use and a terminal; a test plays what people do there and writes down every state.
class HabitDesk {
public:
    /// `toolkit` is one that `toolkitWindow` knows.
    HabitDesk(WindowManager manager, const std::string& toolkit);

    /// Starts the program with bindings for all that it can do.
    void startProgram();

    /// Begins a part of the record, in which places are counted from where they are now.
    void begin(const std::string& habit);
    void note(const std::string& heading) { record_.note(heading); }
    void waitForLine(const std::string& line) const { record_.waitForLine(line); }
    const std::string& record() const { return record_.text(); }

    /// Points at the middle of the title bar of the application.
    void pointAtTitleBar() const;
    /// Points at the plane that scrolls.
    void pointAtPlane() const;
    /// Points into the first word of the text of the application.
    void pointAtFirstWord() const;

    MouseDesk desk;
    const Customs customs;
    PlayedHand hand{desk};
    TypingWindow terminal{desk.windows, "Terminal", {"-geometry", "40x10+750+500"}};
    RealApplication application;

private:
    std::string state() const;
    /// Whether a window has its upper left corner at the pointer, as menus have.
    bool showsMenu() const;

    EventLogWindow::Position firstWord_;
    ScreenArea applicationBefore_{};
    ScreenArea terminalBefore_{};
    DesktopRecord record_{desk, [this] { return state(); }};
};

} // namespace brindlex
