#pragma once

#include "support/screen/DesktopWindows.h"
#include "support/screen/XConnection.h"
#include "support/windows/EventLog.h"

#include <string>
#include <vector>

namespace brindlex {

/// A window that writes down the input that it gets, as an application would get it.
class EventLogWindow {
public:
    /// Which protocol the application listens with.
    enum class Protocol { core, input2 };

    /// Covers the whole screen, with no frame around it, the pointer in the middle of it and the
    /// keys going to it.
    explicit EventLogWindow(Protocol protocol = Protocol::core);
    /// An ordinary window with a title here, and whatever the window manager draws around it; waits
    /// until it stands there.
    EventLogWindow(const std::string& title, const ScreenArea& area);
    ~EventLogWindow();
    EventLogWindow(const EventLogWindow&) = delete;
    EventLogWindow& operator=(const EventLogWindow&) = delete;

    xcb_window_t id() const { return window_; }

    /// All lines since the last `forget`.
    const std::vector<std::string>& lines();
    /// How often the keymap was said to have changed.
    int keymaps();
    /// How many motions came, and how many of them with a button held.
    int motions();
    int drags();
    void forget();

    struct Position {
        int x = 0;
        int y = 0;

        bool operator==(const Position&) const = default;
    };
    Position pointer() const;
    void movePointer(Position position) const;

    /// Buttons and keys that are down, as the server sees it: `button 1`, `key 38`.
    std::vector<std::string> held() const;

private:
    void listen(Protocol protocol);
    void drain();

    XConnection server_;
    xcb_window_t window_;
    EventLog log_;
};

} // namespace brindlex
