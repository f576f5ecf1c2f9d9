#include "support/screen/DisplayServerCommand.h"

namespace brindlex {
namespace {

/// A screen without a card, and the devices that are played.
std::string configurationWithPlayedHardware(
    const VirtualDesktop& desktop, const VirtualDesktop::Options& options)
{
    const auto width = std::to_string(options.width);
    const auto height = std::to_string(options.height);
    const auto device = [&](const std::string& name, const std::string& type) {
        return "Section \"InputDevice\"\n  Identifier \"" + name
            + "\"\n  Driver \"inputtest\"\n  Option \"SocketPath\" \""
            + desktop.hardwareSocket(name).string() + "\"\n  Option \"DeviceType\" \"" + type
            + "\"\n  Option \"PointerButtonCount\" \"" + std::to_string(options.mouseButtons)
            + "\"\nEndSection\n";
    };
    return R"(Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoEnableDevices" "false"
  Option "DontVTSwitch" "true"
  Option "AllowMouseOpenFail" "true"
  Option "PciForceNone" "true"
EndSection
Section "Device"
  Identifier "card"
  Driver "dummy"
  VideoRam 65536
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5.0-1000.0
  VertRefresh 5.0-200.0
EndSection
Section "Screen"
  Identifier "screen"
  Device "card"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Virtual )"
        + width + " " + height + R"(
  EndSubSection
EndSection
)" + device("mouse", "Pointer")
        + device("second-mouse", "Pointer") + device("keyboard", "Keyboard")
        + R"(Section "ServerLayout"
  Identifier "layout"
  Screen "screen"
  InputDevice "mouse" "CorePointer"
  InputDevice "second-mouse" "SendCoreEvents"
  InputDevice "keyboard" "CoreKeyboard"
EndSection
)";
}

} // namespace

std::vector<std::string> displayServerCommand(
    const VirtualDesktop& desktop, const VirtualDesktop::Options& options)
{
    if (options.server == VirtualDesktop::Server::withoutHardware) {
        const auto screen
            = std::to_string(options.width) + "x" + std::to_string(options.height) + "x24";
        std::vector<std::string> command{"Xvfb", "-screen", "0", screen, "-dpi", "96"};
        if (!options.disabledExtension.empty())
            command.insert(command.end(), {"-extension", options.disabledExtension});
        return command;
    }
    const auto configuration = desktop.runtimeFolder() / "xorg.conf";
    write(configuration, configurationWithPlayedHardware(desktop, options));
    return {"Xorg", "-config", configuration, "-logfile", desktop.outputFolder() / "xorg-log",
        "-novtswitch", "-sharevts"};
}

} // namespace brindlex
