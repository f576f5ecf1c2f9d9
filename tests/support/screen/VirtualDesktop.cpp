#include "support/screen/VirtualDesktop.h"

#include "foundation/FatalError.h"
#include "support/basics/DescriptorLine.h"
#include "support/basics/Eventually.h"
#include "support/processes/ProcessTable.h"
#include "support/screen/DisplayServerCommand.h"
#include "support/screen/ScreenState.h"
#include "support/screen/XConnection.h"

#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto timeToStart = 60s;

void runOrFail(const std::vector<std::string>& command, const std::filesystem::path& output)
{
    if (run({.command = command, .output = output}, timeToStart) != ProcessEnd{0, {}})
        fatalError("Failed: " + command.front() + "\n" + contentOf(output));
}

/// A display that no other server has or had lately: a program that looks for a server that has
/// ended must not find another one.
std::string nextDisplay()
{
    constexpr int first = 100;
    constexpr int processes = 7000;
    constexpr int displaysOfProcess = 8;
    static int count = 0;
    return ":"
        + std::to_string(
            first + ::getpid() % processes * displaysOfProcess + count++ % displaysOfProcess);
}

} // namespace

VirtualDesktop::VirtualDesktop() : VirtualDesktop(Options{}) { }

VirtualDesktop::VirtualDesktop(const Options& options) : home_(folder_.path() / "home")
{
    makeFolders();
    for (const auto name : {"WAYLAND_DISPLAY", "WAYLAND_SOCKET", "XAUTHORITY", "SESSION_MANAGER",
             "DESKTOP_STARTUP_ID", "AT_SPI_BUS_ADDRESS", "NO_AT_BRIDGE", "IBUS_ADDRESS",
             "IBUS_ADDRESS_FILE", "XMODIFIERS", "GTK_IM_MODULE", "QT_IM_MODULE",
             "XDG_CURRENT_DESKTOP", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS", "LC_ALL", "LANGUAGE"})
        setVariable(name, std::nullopt);
    setVariable("HOME", home_);
    setVariable("XDG_CONFIG_HOME", configFolder());
    setVariable("XDG_DATA_HOME", dataFolder());
    setVariable("XDG_STATE_HOME", stateFolder());
    setVariable("XDG_CACHE_HOME", cacheFolder());
    setVariable("XDG_RUNTIME_DIR", runtimeFolder());
    setVariable("LANG", "C.UTF-8");
    // Settings of other programs go to a plain file of this home, with no service in between.
    setVariable("GSETTINGS_BACKEND", "keyfile");
    // With no bus a client must not find or start another one by itself.
    setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + (runtimeFolder() / "bus").string());

    startDisplayServer(options);
    if (options.sessionBus)
        startSessionBus();
    if (options.windowManager != WindowManager::none)
        startWindowManager(options.windowManager);
    if (options.accessibility)
        allowAccessibility();
    screenReport_ = std::make_unique<StateReport>(screenState);
}

VirtualDesktop::~VirtualDesktop()
{
    screenReport_.reset();
    windowManager_.reset();
    sessionBus_.reset();
    displayServer_.reset();
    endStragglers();
}

void VirtualDesktop::makeFolders()
{
    for (const auto& folder : {home_, configFolder(), dataFolder(), stateFolder(), cacheFolder(),
             runtimeFolder(), outputFolder()}) {
        std::error_code error;
        std::filesystem::create_directories(folder, error);
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, error);
        if (error)
            fatalError("Cannot make " + folder.string() + ": " + error.message());
    }
}

void VirtualDesktop::startDisplayServer(const Options& options)
{
    bool isReady = false;
    for (int attempt = 0; attempt < 3 && !isReady; ++attempt) {
        display_ = nextDisplay();
        DescriptorLine number;
        auto command = displayServerCommand(*this, options);
        command.insert(command.end(),
            {display_, "-displayfd", std::to_string(number.writingEnd()), "-nolisten", "tcp",
                "-noreset"});
        displayServer_ = std::make_unique<ChildProcess>(ChildProcess::Start{
            .command = command,
            .output = outputFolder() / "display-server",
            .inherited = number.writingEnd(),
        });
        isReady = number.read(timeToStart).has_value();
    }
    if (!isReady)
        fatalError("The X server did not start.\n" + displayServer_->output());
    setVariable("DISPLAY", display_);
    setKeyboardLayouts(options.keyboardLayouts);
}

void VirtualDesktop::startSessionBus()
{
    DescriptorLine address;
    sessionBus_ = std::make_unique<ChildProcess>(ChildProcess::Start{
        .command = {"dbus-daemon", "--session", "--nofork", "--nopidfile",
            "--print-address=" + std::to_string(address.writingEnd()),
            "--address=unix:path=" + (runtimeFolder() / "bus").string()},
        .output = outputFolder() / "session-bus",
        .inherited = address.writingEnd(),
    });
    const auto line = address.read(timeToStart);
    if (!line)
        fatalError("The session bus did not start.\n" + sessionBus_->output());
    setVariable("DBUS_SESSION_BUS_ADDRESS", *line);
}

void VirtualDesktop::startWindowManager(WindowManager manager)
{
    windowManager_ = std::make_unique<ChildProcess>(ChildProcess::Start{
        .command = windowManagerCommand(*this, manager),
        .output = outputFolder() / "window-manager",
    });
    // It tells what it supports long before it looks after windows; a window that it has taken in
    // shows the latter, and so does a reply where it has one, without a window on the screen.
    const XConnection server;
    const auto window = xcb_generate_id(server.get());
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window, server.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const bool looksAtShownWindowsOnly
        = manager == WindowManager::kwin || manager == WindowManager::kwinWithoutEffects;
    if (looksAtShownWindowsOnly)
        xcb_map_window(server.get(), window);
    const auto looksAfterWindows = [&] {
        server.ask(window, "_NET_REQUEST_FRAME_EXTENTS", {});
        return !server.values(window, "_NET_FRAME_EXTENTS").empty();
    };
    const bool isReady = eventually(looksAfterWindows, timeToStart);
    xcb_destroy_window(server.get(), window);
    if (!isReady)
        fatalError("The window manager did not start.\n" + windowManager_->output());
}

void VirtualDesktop::allowAccessibility()
{
    runOrFail({"dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
                  "org.freedesktop.DBus.Properties.Set", "string:org.a11y.Status",
                  "string:IsEnabled", "variant:boolean:true"},
        outputFolder() / "accessibility");
}

std::optional<pid_t> VirtualDesktop::windowManager() const
{
    return windowManager_ ? std::optional(windowManager_->id()) : std::nullopt;
}

void VirtualDesktop::setVariable(const std::string& name, const std::optional<std::string>& value)
{
    environment_.set(name, value);
}

void VirtualDesktop::setKeyboardLayouts(const std::string& layouts)
{
    runOrFail({"setxkbmap", "-rules", "evdev", "-model", "pc105", "-layout", layouts},
        outputFolder() / "keyboard-layouts");
}

void VirtualDesktop::endDisplayServer()
{
    displayServer_->signal(SIGKILL);
    displayServer_->waitForEnd(timeToStart);
    // A server that is killed leaves this behind.
    std::error_code ignored;
    std::filesystem::remove("/tmp/.X11-unix/X" + display_.substr(1), ignored);
}

void VirtualDesktop::endSessionBus()
{
    sessionBus_->signal(SIGKILL);
    sessionBus_->waitForEnd(timeToStart);
}

std::string VirtualDesktop::output() const
{
    std::string text;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(outputFolder(), ignored))
        if (const auto content = contentOf(entry.path()); !content.empty())
            text += "--- " + entry.path().filename().string() + "\n" + content;
    return text;
}

void VirtualDesktop::endStragglers()
{
    // Services that the bus started lead groups of their own; they carry the home in their
    // environment.
    for (const auto process : processesWithVariable("HOME", home_))
        kill(process, SIGKILL);
}

} // namespace brindlex
