#include "support/screen/WindowManager.h"

#include "support/basics/TemporaryFolder.h"
#include "support/screen/VirtualDesktop.h"

namespace brindlex {
namespace {

constexpr auto quietConfiguration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy></placement>
  <theme><name>Clearlooks</name><animateIconify>no</animateIconify></theme>
  <desktops><number>4</number><firstdesk>1</firstdesk><popupTime>0</popupTime></desktops>
  <keyboard>
    <keybind key="A-Tab"><action name="NextWindow"/></keybind>
    <keybind key="A-F4"><action name="Close"/></keybind>
  </keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Left" action="Drag"><action name="Move"/></mousebind>
    </context>
  </mouse>
</openbox_config>
)";

} // namespace

std::string nameOf(WindowManager manager)
{
    switch (manager) {
    case WindowManager::none:
        return "none";
    case WindowManager::quiet:
        return "quiet";
    case WindowManager::openbox:
        return "openbox";
    case WindowManager::xfwm4:
        return "xfwm4";
    case WindowManager::kwin:
        return "kwin";
    case WindowManager::kwinWithoutEffects:
        return "kwinWithoutEffects";
    case WindowManager::mutter:
        return "mutter";
    }
    return {};
}

std::vector<std::string> windowManagerCommand(const VirtualDesktop& desktop, WindowManager manager)
{
    const auto configure = [&](const std::string& name, const std::string& content) {
        const auto file = desktop.configFolder() / name;
        std::filesystem::create_directories(file.parent_path());
        write(file, content);
    };
    switch (manager) {
    case WindowManager::none:
        break;
    case WindowManager::quiet:
        configure("openbox/rc.xml", quietConfiguration);
        return {
            "openbox", "--sm-disable", "--config-file", desktop.configFolder() / "openbox/rc.xml"};
    case WindowManager::openbox:
        return {"openbox", "--sm-disable"};
    case WindowManager::xfwm4:
        return {"xfwm4", "--sm-client-disable"};
    case WindowManager::kwin:
    case WindowManager::kwinWithoutEffects:
        configure("kwinrc",
            std::string("[Desktops]\nNumber=4\nRows=1\n[Compositing]\nEnabled=")
                + (manager == WindowManager::kwin ? "true\n" : "false\n"));
        return {"kwin_x11"};
    case WindowManager::mutter:
        configure("glib-2.0/settings/keyfile",
            "[org/gnome/mutter]\ndynamic-workspaces=false\n"
            "[org/gnome/desktop/wm/preferences]\nnum-workspaces=4\n");
        return {"mutter", "--x11", "--sm-disable"};
    }
    return {};
}

} // namespace brindlex
