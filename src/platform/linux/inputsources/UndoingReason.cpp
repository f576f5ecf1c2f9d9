#include "platform/linux/inputsources/UndoingReason.h"

#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/x11/X11Properties.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace brindlex {
namespace {

constexpr auto byShell = "GNOME Shell lets no other program change the layout. Fcitx 5 can be "
                         "switched there, with one layout in the settings of the Shell.";
constexpr auto byDaemon = "kbdd keeps a layout for each window and brings it back. It is not "
                          "needed beside Brindlex.";
constexpr auto byPlugin = "The layout plugin of the Xfce panel keeps a layout for each window and "
                          "brings it back. It can be set to manage the layout globally.";

bool isShell(std::string_view windowManager)
{
    return windowManager == "GNOME Shell" || windowManager.starts_with("Mutter");
}

/// The panel runs each plugin in a process "panel-8-xkb".
bool isPlugin(std::string_view process)
{
    return process.starts_with("panel-") && process.ends_with("-xkb");
}

} // namespace

std::string undoingReason(
    const std::string& windowManager, const std::vector<std::string>& processes)
{
    if (isShell(windowManager))
        return byShell;
    if (std::find(processes.begin(), processes.end(), "kbdd") != processes.end())
        return byDaemon;
    if (std::any_of(processes.begin(), processes.end(), isPlugin))
        return byPlugin;
    return {};
}

std::vector<std::string> processNames()
{
    std::vector<std::string> names;
    std::error_code ended;
    for (const auto& process : std::filesystem::directory_iterator("/proc", ended)) {
        std::ifstream file(process.path() / "comm");
        if (std::string name; std::getline(file, name))
            names.push_back(std::move(name));
    }
    return names;
}

std::string undoingReason(X11Connection& connection)
{
    const auto manager
        = X11PropertyRequest(connection, connection.root(), "_NET_SUPPORTING_WM_CHECK", 4).values();
    return undoingReason(
        manager && !manager->empty() ? windowTitle(connection, manager->front()) : "",
        processNames());
}

} // namespace brindlex
