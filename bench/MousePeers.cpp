#include "MousePeers.h"

#include "support/basics/Eventually.h"
#include "support/processes/ProcessTable.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// A program that sleeps this long has done what it does at its start.
constexpr auto restful = 100ms;

bool rests(const ChildProcess& program)
{
    const auto before = timesAsleep(program.id());
    return before && throughout(restful, [&] { return timesAsleep(program.id()) == before; });
}

/// Whether another program gets the presses of the button before all windows.
bool isHeld(const XConnection& server, std::uint8_t button)
{
    const auto request
        = xcb_grab_button_checked(server.get(), false, server.root(), XCB_EVENT_MASK_BUTTON_PRESS,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, button, XCB_MOD_MASK_ANY);
    if (const XReply<xcb_generic_error_t> refusal{xcb_request_check(server.get(), request)})
        return true;
    xcb_ungrab_button(server.get(), button, server.root(), XCB_MOD_MASK_ANY);
    server.sync();
    return false;
}

std::unique_ptr<ChildProcess> start(
    const ChildProcess::Start& command, const XConnection& server, std::uint8_t button)
{
    auto program = std::make_unique<ChildProcess>(command);
    const bool isReady = eventually([&] { return rests(*program) || !program->isRunning(); })
        && program->isRunning() && isHeld(server, button);
    return isReady ? std::move(program) : nullptr;
}

} // namespace

bool isInstalled(const std::string& program)
{
    const char* const path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');)
        if (access((folder + "/" + program).c_str(), X_OK) == 0)
            return true;
    return false;
}

std::unique_ptr<ChildProcess> startXbindkeys(
    const VirtualDesktop& desktop, const XConnection& server, const std::string& command)
{
    const auto configuration = desktop.home() / "xbindkeysrc";
    std::ofstream(configuration) << '"' << command << "\"\n  b:2\n";
    constexpr std::uint8_t middleButton = 2;
    return start({.command = {"xbindkeys", "-n", "-f", configuration.string()},
                     .output = desktop.outputFolder() / "xbindkeys"},
        server, middleButton);
}

std::unique_ptr<ChildProcess> startImwheel(const VirtualDesktop& desktop, const XConnection& server)
{
    std::ofstream(desktop.home() / ".imwheelrc")
        << "\".*\"\nNone, Up, Button4, 1\nNone, Down, Button5, 1\n";
    constexpr std::uint8_t wheelDown = 5;
    // In the foreground, and without a file that would tell others of it.
    return start({.command = {"imwheel", "-d", "-p", "-b", "4 5"},
                     .output = desktop.outputFolder() / "imwheel"},
        server, wheelDown);
}

} // namespace brindlex
