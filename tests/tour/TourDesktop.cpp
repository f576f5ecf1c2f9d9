#include "tour/TourDesktop.h"

#include "support/basics/Eventually.h"
#include "support/screen/Screenshot.h"
#include "support/switching/SwitchingRules.h"
#include "support/windows/InstalledApplication.h"
#include "tour/Wallpaper.h"

namespace brindlex {
namespace {

constexpr auto lettersApplication = "com.example.Letters";
constexpr auto notesApplication = "com.example.Notes";

SwitchingRules rules()
{
    return {
        .applications = {{lettersApplication, german},
            {notesApplication, std::string("ibus:") + pinyin}, {"org.chromium.Chromium", english}},
        .websites = {{"forum.example.org", german}},
    };
}

} // namespace

std::vector<std::string> paper(const std::string& title, const std::string& colour)
{
    return {"-T", title, "-fa", "DejaVu Sans Mono", "-fd", "Noto Sans Mono CJK SC", "-fs", "17",
        "-bg", colour, "-fg", "#2e3440", "-cr", "#5e81ac", "-b", "18", "+sb"};
}

TourDesktop::TourDesktop() : ibus(desktop, {english, german, pinyin})
{
    paintWallpaper(server);
    installApplication(desktop, lettersApplication, "Letters");
    installApplication(desktop, notesApplication, "Notes");
    files.writePreferences(rules().preferences());
    browser.emplace(desktop, windows, web, "chromium", "www.example.com");
    windows.place(browser->window(), {150, 350, 980, 420});
    letters.emplace(windows, "Letters", paper("Letters", "#fdf6e3"));
    windows.place(letters->window(), {40, 50, 580, 240});
    notes.emplace(windows, "Notes", paper("Notes", "#eef4f8"));
    windows.place(notes->window(), {660, 50, 580, 240});
    ibus.select(english);
}

bool TourDesktop::startProgram()
{
    program.emplace(desktop);
    return program->launches();
}

bool TourDesktop::showsOverlay() const
{
    std::vector<xcb_window_t> overlays;
    const auto isThere = [&] {
        overlays = windows.unmanagedOf(program->process());
        return !overlays.empty();
    };
    if (!eventually(isThere))
        return false;
    // It fades in: it is there in full when it no longer changes.
    return comesToRest(server, windows.areaOf(overlays.front()));
}

bool TourDesktop::hidesOverlay() const
{
    return eventually([&] { return windows.unmanagedOf(program->process()).empty(); });
}

} // namespace brindlex
