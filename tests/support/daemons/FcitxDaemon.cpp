#include "support/daemons/FcitxDaemon.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"
#include "support/bus/BusConnection.h"
#include "support/hardware/PlayedInput.h"
#include "support/windows/XInputMethodServer.h"

#include <csignal>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto fcitxName = "org.fcitx.Fcitx5";
constexpr auto fcitxPath = "/controller";
constexpr auto interface = "org.fcitx.Fcitx.Controller1";

std::string profile(const std::vector<std::string>& inputMethods)
{
    auto text = "[Groups/0]\nName=Default\nDefault Layout=us\nDefaultIM=" + inputMethods.back();
    for (std::size_t index = 0; index < inputMethods.size(); ++index)
        text += "\n\n[Groups/0/Items/" + std::to_string(index) + "]\nName=" + inputMethods[index]
            + "\nLayout=";
    return text + "\n\n[GroupOrder]\n0=Default\n";
}

} // namespace

FcitxDaemon::FcitxDaemon(VirtualDesktop& desktop, const std::vector<std::string>& inputMethods)
    : desktop_(desktop)
{
    const auto folder = desktop.configFolder() / "fcitx5";
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    write(folder / "profile", profile(inputMethods));
    for (const auto variable : {"GTK_IM_MODULE", "QT_IM_MODULE"})
        desktop.setVariable(variable, "fcitx");
    desktop.setVariable("XMODIFIERS", "@im=fcitx");
    start();
}

void FcitxDaemon::start()
{
    daemon_ = std::make_unique<ChildProcess>(ChildProcess::Start{
        .command = {"fcitx5", "--disable=wayland,waylandim,cloudpinyin,notifications"},
        .output = desktop_.outputFolder() / "fcitx5",
    });
    const auto replies = [] {
        const BusConnection bus;
        return bus.hasOwner(fcitxName) && hasXInputMethodServer("fcitx")
            && bus.call(fcitxName, fcitxPath, interface, "CurrentInputMethodGroup");
    };
    if (!eventually(replies, 60s))
        fatalError("Fcitx did not start.\n" + daemon_->output());
}

void FcitxDaemon::stop()
{
    daemon_->signal(SIGKILL);
    daemon_.reset();
}

std::string FcitxDaemon::current() const
{
    return BusConnection().call(fcitxName, fcitxPath, interface, "CurrentInputMethod").text();
}

std::string FcitxDaemon::context() const
{
    const auto all = BusConnection().call(fcitxName, fcitxPath, interface, "DebugInfo").text();
    const auto end = all.find(" focus:1");
    const auto begin = all.rfind("IC [", end);
    return end == std::string::npos || begin == std::string::npos ? "" : all.substr(begin, 20);
}

bool FcitxDaemon::select(const std::string& inputMethod)
{
    const XConnection server;
    PlayedInput(server).showHand();
    return change(inputMethod);
}

bool FcitxDaemon::change(const std::string& inputMethod)
{
    // While no window has the keyboard yet, the daemon says yes and does nothing.
    return eventually([&] {
        return BusConnection().call(fcitxName, fcitxPath, interface, "SetCurrentIM", {inputMethod})
            && eventually([&] { return current() == inputMethod; }, 300ms);
    });
}

} // namespace brindlex
