#pragma once

#include "mouse/MouseConfig.h"
#include "support/basics/Eventually.h"
#include "support/hardware/PlayedHardware.h"
#include "support/processes/ProgramFiles.h"
#include "support/processes/RunningProgram.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"
#include "support/windows/EventLogWindow.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A desktop with mice and a keyboard that the test plays, ready for the program to be started on
/// it.
struct MouseDesk {
    using Lines = std::vector<std::string>;

    /// The hardware is played whatever the options say.
    explicit MouseDesk(VirtualDesktop::Options options = {});

    /// What the user has set about the mouse from now on; a running program notices by itself.
    void set(const MouseConfig& config) const;
    void setPreference(const std::string& key, const nlohmann::json& value) const;

    /// Starts the program and waits until it has launched and taken what it takes.
    void start(const MouseConfig& config);

    /// Waits until what was played has reached the applications, through the program if it runs,
    /// and everybody on the desktop has done what is to be done about it.
    void settle() const;
    /// How often everybody on the desktop has gone to sleep; nothing while anybody has work.
    std::optional<long> timesAtRest() const;

    /// Waits until the window has exactly these lines.
    bool receives(EventLogWindow& window, const Lines& expected) const;

    /// How many virtual desktops lie to the left of the one that is shown.
    std::uint32_t currentDesktop() const;
    bool showsDesktop(std::uint32_t number) const;

    /// Whether a device is away from the applications at this moment.
    bool isAnyDeviceTaken() const;
    /// Waits until no device is.
    bool givesDevicesBack() const;

    VirtualDesktop desktop;
    XConnection server;
    DesktopWindows windows{server};
    ProgramFiles files{desktop};
    PlayedMouse mouse{desktop};
    PlayedMouse secondMouse{desktop, "second-mouse"};
    PlayedKeyboard keyboard{desktop};
    std::optional<RunningProgram> program;
};

/// X counts buttons from 1, and the wheel among them.
inline constexpr int leftButton = 1;
inline constexpr int middleButton = 2;
inline constexpr int rightButton = 3;
inline constexpr int backButton = 8;
inline constexpr int forwardButton = 9;

MouseGestureBinding gesture(
    MouseButton button, ModifierSet modifiers, MouseDirection direction, MouseAction::Any action);
MouseClickBinding click(MouseButton button, ModifierSet modifiers, MouseAction::Any action);

/// What an application gets of going forward: the second side button.
inline const MouseDesk::Lines forwardClick{"press 9", "release 9"};

/// A user of all that there is: gestures on a side button to all sides and on the left button with
/// option, a click on the middle button, and a smooth wheel.
MouseConfig everything();

} // namespace brindlex
