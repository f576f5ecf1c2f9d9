#pragma once

#include "support/screen/DesktopWindows.h"
#include "support/screen/XConnection.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace brindlex {

/// A tray of the test's own for icons that are windows of their programs (XEMBED), on a bar in the
/// upper left corner of the screen. It works while it is asked something. Its end is like that of a
/// tray that crashes.
class DockTray {
public:
    struct Options {
        /// Of each side of an icon, in pixels.
        std::uint16_t iconSize = 24;
        /// The colour of the bar, 0xRRGGBB.
        std::uint32_t ground = 0xF0F0F0;
        /// Whether the icons go on without a place when the tray ends, or end with it.
        bool savesIcons = true;
        /// Whether it wants icons with an alpha, as a tray that is translucent itself does.
        bool wantsAlpha = false;
    };

    DockTray() : DockTray(Options{}) { }
    explicit DockTray(const Options& options);
    ~DockTray();
    DockTray(const DockTray&) = delete;
    DockTray& operator=(const DockTray&) = delete;

    /// The icons in it, oldest first.
    const std::vector<xcb_window_t>& icons();
    /// How many icons have asked to be taken in so far.
    int requests();
    /// Where the first icon is on the screen.
    ScreenArea iconArea() const;
    /// Puts the icons out.
    void putOut();

private:
    void process();
    void take(xcb_window_t icon);
    void requestAlpha();

    const Options options_;
    /// Its own, whose events nobody else takes.
    XConnection server_;
    xcb_window_t window_;
    std::vector<xcb_window_t> icons_;
    int requests_ = 0;
};

} // namespace brindlex
