#pragma once

#include "support/basics/Eventually.h"
#include "support/hardware/KeyboardGroup.h"
#include "support/hardware/PlayedInput.h"
#include "support/processes/ProgramFiles.h"
#include "support/processes/RunningProgram.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"
#include "support/switching/SwitchingRules.h"
#include "support/windows/InstalledApplication.h"
#include "support/windows/TypingWindow.h"

#include <vector>

namespace brindlex {

/// The identifier of an application of `ProgramDesk`, by the class of its windows.
std::string identifierOf(const std::string& className);

/// A desktop with the layouts US, German and Russian and the applications Alpha, Beta and Gamma
/// installed, ready for the program to be started on it.
struct ProgramDesk {
    explicit ProgramDesk(const VirtualDesktop::Options& options = usual);

    /// What most tests want.
    static const VirtualDesktop::Options usual;

    /// Gives the user these rules and no other settings; an application goes by its class.
    void applyRules(const std::vector<SwitchingRules::Rule>& applications) const;

    /// Waits until the layout is in force.
    bool usesGroup(int group) const;
    /// Whether the layout stays in force for as long as the program could need to change it.
    bool keepsGroup(int group) const;

    VirtualDesktop desktop;
    XConnection server;
    DesktopWindows windows;
    PlayedInput input;
    ProgramFiles files;
};

inline constexpr auto us = "xkb:us::eng";
inline constexpr auto german = "xkb:de::deu";
inline constexpr auto russian = "xkb:ru::rus";

inline constexpr int usGroup = 0;
inline constexpr int germanGroup = 1;
inline constexpr int russianGroup = 2;

} // namespace brindlex
