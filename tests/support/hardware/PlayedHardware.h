#pragma once

#include "foundation/FileHandle.h"
#include "support/screen/VirtualDesktop.h"

#include <cstdint>
#include <string>

namespace brindlex {

/// One device of the hardware of a virtual desktop, played through the driver of the X server, so
/// that it has acceleration, a repeat and a wheel like a real one.
///
/// What is played is processed when `settle` returns. The device falls silent with the object and
/// cannot be played again.
class PlayedDevice {
public:
    /// `name` is one of `mouse`, `second-mouse` and `keyboard`.
    PlayedDevice(const VirtualDesktop& desktop, const std::string& name);

    /// Pulls the device out, with whatever is pressed on it; nothing can be played then.
    void pullOut();
    void plugIn();

    void settle() const;

protected:
    void send(const void* message, std::size_t size) const;

private:
    void connect();

    std::string name_;
    std::string path_;
    FileHandle socket_;
};

/// A mouse with as many buttons as the desktop was made with, counted as X counts them, and a wheel
/// with fine steps.
class PlayedMouse : public PlayedDevice {
public:
    explicit PlayedMouse(const VirtualDesktop& desktop, const std::string& name = "mouse")
        : PlayedDevice(desktop, name)
    {
    }

    void press(int button) const { play(button, true); }
    void release(int button) const { play(button, false); }
    void click(int button) const;

    /// Moves by so many counts, as yet without acceleration.
    void move(double x, double y) const;

    /// Turns the wheel by notches or parts of one: positive is down, and to the right.
    void turnWheel(double down, double right = 0) const;

private:
    void play(int button, bool isPress) const;
    void moveAxes(int firstAxis, double x, double y) const;
};

/// A keyboard; keys are places on the board, as X counts them.
class PlayedKeyboard : public PlayedDevice {
public:
    explicit PlayedKeyboard(const VirtualDesktop& desktop) : PlayedDevice(desktop, "keyboard") { }

    void press(std::uint8_t key) const { play(key, true); }
    void release(std::uint8_t key) const { play(key, false); }
    void stroke(std::uint8_t key) const;

private:
    void play(std::uint8_t key, bool isPress) const;
};

} // namespace brindlex
