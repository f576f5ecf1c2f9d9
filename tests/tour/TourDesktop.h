#pragma once

#include "support/browsers/LocalWebServer.h"
#include "support/browsers/WebBrowser.h"
#include "support/daemons/IBusDaemon.h"
#include "support/hardware/PlayedInput.h"
#include "support/processes/ProgramFiles.h"
#include "support/processes/RunningProgram.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/TypingWindow.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The options of a terminal whose window looks like one to write in.
std::vector<std::string> paper(const std::string& title, const std::string& colour);

/// The engines of IBus that the user of the tour writes with.
inline constexpr auto english = "xkb:us::eng";
inline constexpr auto german = "xkb:de::deu";
inline constexpr auto pinyin = "libpinyin";

/// The desktop that the tour plays on: IBus with English, German and Pinyin, two windows to write
/// in and a browser, the rules of a user who writes in all three, and the program.
class TourDesktop {
public:
    TourDesktop();

    /// Starts the program; whether it says that it has launched.
    bool startProgram();

    /// Waits until the overlay stands on the screen, faded in; false when none appears.
    bool showsOverlay() const;
    /// Waits until no overlay is left.
    bool hidesOverlay() const;

    VirtualDesktop desktop{{.keyboardLayouts = "us,de", .accessibility = true}};
    XConnection server;
    DesktopWindows windows{server};
    PlayedInput input{server};
    ProgramFiles files{desktop};
    LocalWebServer web;
    IBusDaemon ibus;
    std::optional<TypingWindow> letters;
    std::optional<TypingWindow> notes;
    std::optional<WebBrowser> browser;
    std::optional<RunningProgram> program;
};

} // namespace brindlex
