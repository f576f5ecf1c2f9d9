#pragma once

#include <cstdint>
#include <string>
#include <xcb/xcb.h>

namespace brindlex {

/// What the watchdog does on the X server, over a connection of its own.
class InputRescue {
public:
    /// `display` is the server's name; empty means the one that `DISPLAY` names.
    explicit InputRescue(const std::string& display);
    ~InputRescue();
    InputRescue(const InputRescue&) = delete;
    InputRescue& operator=(const InputRescue&) = delete;

    bool isConnected() const { return xcb_connection_has_error(server_) == 0; }
    int descriptor() const { return xcb_get_file_descriptor(server_); }

    /// Whether the server reports what the devices do, whoever has taken them.
    void listen(bool isListening);

    /// Whether the server has reported anything since the last time.
    bool takeInput();

    /// Ends the connection to which the window belongs, with all that it has taken, and tidies up.
    void cut(std::uint32_t window);

    /// Takes the window from the screen: what it had grabbed ends with that.
    void close(std::uint32_t window);

    /// Waits until the connection to which the window belongs has gone, and releases what was
    /// played to the applications in place of the devices and would stay down for ever. A button
    /// that a hand holds at that moment stays down; a key is up until it is pressed again.
    void tidyAfter(std::uint32_t window);

private:
    bool exists(std::uint32_t window) const;
    void releasePlayed();
    void releasePlayedOn(std::uint16_t device);

    xcb_connection_t* server_;
    xcb_window_t root_ = 0;
    bool isListening_ = false;
};

} // namespace brindlex
