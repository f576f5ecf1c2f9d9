#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace brindlex {

class VirtualDesktop;

/// The window managers that a desktop can have.
enum class WindowManager {
    none,
    /// openbox with nothing that moves, asks or takes a key from a test.
    quiet,
    // As their packages install them, with four desktops.
    openbox,
    xfwm4,
    kwin,
    kwinWithoutEffects,
    mutter,
};

/// As the test that runs with it is called.
std::string nameOf(WindowManager manager);
inline void PrintTo(WindowManager manager, std::ostream* stream) { *stream << nameOf(manager); }

/// What starts a window manager, any but `none`; writes the configuration that it needs into the
/// user's folder of the desktop.
std::vector<std::string> windowManagerCommand(const VirtualDesktop& desktop, WindowManager manager);

} // namespace brindlex
