#include "tour/MouseChapter.h"

#include "desktop/MouseDesk.h"
#include "support/hardware/Keycodes.h"
#include "support/screen/Screenshot.h"
#include "support/windows/InstalledApplication.h"
#include "support/windows/TypingWindow.h"
#include "tour/TourDesktop.h"
#include "tour/Wallpaper.h"

#include <chrono>
#include <iostream>
#include <unistd.h>

namespace brindlex {
namespace {

using Lines = MouseDesk::Lines;

class MouseChapter {
public:
    explicit MouseChapter(TourReport& report) : report_(report) { }

    bool start()
    {
        report_.tell(
            "A desktop with a mouse that is played is made, and Brindlex is started on it.");
        auto config = everything();
        config.click.bindings
            = {click(MouseButton::button3, {},
                   MouseAction::RunShellCommand{"echo done > '" + trace().string() + "'"}),
                click(MouseButton::button5, {}, MouseAction::Plain::missionControl)};
        desk_.set(config);
        desk_.program.emplace(desk_.desktop);
        const bool launched
            = report_.check(desk_.program->launches(), "It says in its log: Brindlex launched");
        desk_.settle();
        return launched;
    }

    void gesture()
    {
        report_.tell("The user holds the side button and drags to the right.");
        EventLogWindow window;
        drag(60, 0);
        desk_.mouse.release(backButton);
        report_.check(desk_.receives(window, forwardClick),
            "The window under the pointer gets the button for forward, and nothing of the drag.");

        report_.tell("The user clicks the side button without dragging it.");
        window.forget();
        desk_.mouse.click(backButton);
        report_.check(
            desk_.receives(window, {"press 8", "release 8"}), "The window gets the click, once.");
    }

    void binding()
    {
        report_.tell("The user clicks the middle button, to which a command is bound.");
        EventLogWindow window;
        // The focus may still be on its way from the window before.
        desk_.settle();
        window.forget();
        desk_.mouse.click(middleButton);
        report_.check(
            eventually([&] { return contentOf(trace()) == "done\n"; }), "The command has run.");
        const bool isQuiet = desk_.receives(window, {});
        std::string arrived;
        for (const auto& line : window.lines())
            arrived += " " + line + ";";
        report_.check(isQuiet, "The window gets nothing of the click." + arrived);
    }

    void wheel()
    {
        constexpr std::size_t notches = 5;
        report_.tell("The user turns the wheel down by five notches at once; scrolling is smooth.");
        EventLogWindow window;
        desk_.settle();
        window.forget();
        const auto before = std::chrono::steady_clock::now();
        desk_.mouse.turnWheel(notches);
        Lines expected;
        for (std::size_t notch = 0; notch < notches; ++notch)
            expected.insert(expected.end(), {"press 5", "release 5"});
        eventually([&] { return window.lines().size() >= expected.size(); });
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - before);
        report_.check(desk_.receives(window, expected),
            std::to_string(window.lines().size() / 2) + " notches arrive, spread over "
                + std::to_string(took.count()) + " ms.");
    }

    void spaces()
    {
        report_.tell("The user drags upward with the side button, and then downward.");
        drag(0, -60);
        desk_.mouse.release(backButton);
        report_.check(desk_.showsDesktop(1), "The desktop on the right is shown.");
        desk_.program->logs("SpaceSwitcher: finished");
        drag(0, 60);
        desk_.mouse.release(backButton);
        report_.check(desk_.showsDesktop(0), "The first desktop is shown again.");
    }

    void windows()
    {
        report_.tell("The user clicks the other side button, to which Mission Control is bound.");
        paintWallpaper(desk_.server);
        for (const std::string name : {"Letters", "Notes", "Diary"})
            installApplication(desk_.desktop, "com.example." + name, name);
        const TypingWindow letters(desk_.windows, "Letters", paper("A letter home", "#fdf6e3"));
        desk_.windows.place(letters.window(), {40, 50, 440, 220});
        const TypingWindow notes(desk_.windows, "Notes", paper("Shopping", "#eef4f8"));
        desk_.windows.place(notes.window(), {540, 50, 440, 220});
        const TypingWindow diary(desk_.windows, "Diary", paper("November", "#f5eef8"));
        desk_.windows.place(diary.window(), {150, 490, 720, 220});
        desk_.settle();
        desk_.mouse.click(forwardButton);
        const auto list = [this] { return desk_.windows.unmanagedOf(desk_.program->process()); };
        const bool isShown = eventually([&] { return !list().empty(); })
            && comesToRest(desk_.server, desk_.windows.areaOf(list().front()));
        report_.check(isShown, "The list of all windows stands in the middle of the screen.");
        report_.picture(desk_.server, "7-all-windows");

        report_.tell("The user presses Return.");
        desk_.settle();
        desk_.keyboard.stroke(keycode::enter);
        report_.check(eventually([&] { return desk_.windows.active() == notes.window(); }),
            "The window before is in front, and the list is gone.");
    }

    void end()
    {
        report_.tell("The session asks Brindlex to end while the side button is held.");
        desk_.mouse.press(backButton);
        desk_.mouse.settle();
        report_.check(desk_.program->quit() == ProcessEnd{0, {}}, "It ends by itself.");
        desk_.mouse.release(backButton);
        desk_.mouse.settle();
        report_.check(desk_.givesDevicesBack(), "The mouse belongs to the desktop again.");
        EventLogWindow window;
        report_.check(window.held().empty(), "No button and no key is stuck.");
    }

    std::string reportOfProgram() const { return desk_.program ? desk_.program->report() : ""; }

private:
    std::filesystem::path trace() const { return desk_.desktop.home() / "trace"; }

    /// Presses the side button and moves, without letting go.
    void drag(double x, double y)
    {
        constexpr int steps = 10;
        desk_.mouse.press(backButton);
        desk_.mouse.settle();
        for (int step = 0; step < steps; ++step)
            desk_.mouse.move(x / steps, y / steps);
        desk_.settle();
    }

    TourReport& report_;
    MouseDesk desk_;
};

} // namespace

void playMouseChapter(TourReport& report)
{
    if (geteuid() != 0) {
        report.tell(
            "The chapter about the mouse is left out: only the superuser can play a mouse.");
        return;
    }
    MouseChapter chapter(report);
    if (chapter.start()) {
        chapter.gesture();
        chapter.binding();
        chapter.wheel();
        chapter.spaces();
        chapter.windows();
        chapter.end();
    }
    if (!report.isGood())
        std::cerr << chapter.reportOfProgram() << std::endl;
}

} // namespace brindlex
