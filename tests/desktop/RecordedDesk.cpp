#include "desktop/RecordedDesk.h"

#include "foundation/FatalError.h"

#include <algorithm>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto timeToStart = 20s;

/// Everything that the mouse and the keys do on a usual desktop.
constexpr auto recordedConfiguration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <theme><name>Clearlooks</name><animateIconify>no</animateIconify></theme>
  <desktops><number>4</number><firstdesk>1</firstdesk><popupTime>0</popupTime></desktops>
  <margins><top>2</top></margins>
  <keyboard>
    <keybind key="A-Tab"><action name="NextWindow"/></keybind>
    <keybind key="C-A-Right"><action name="GoToDesktop"><to>right</to></action></keybind>
    <keybind key="W-d"><action name="ToggleShowDesktop"/></keybind>
  </keyboard>
  <mouse>
    <doubleClickTime>500</doubleClickTime>
    <context name="Frame">
      <mousebind button="A-Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="A-Left" action="Drag"><action name="Move"/></mousebind>
      <mousebind button="A-Right" action="Drag"><action name="Resize"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Left" action="Drag"><action name="Move"/></mousebind>
      <mousebind button="Left" action="DoubleClick"><action name="ToggleMaximize"/></mousebind>
      <mousebind button="Right" action="Press"><action name="ShowMenu"><menu>client-menu</menu></action></mousebind>
      <mousebind button="Up" action="Click"><action name="Shade"/></mousebind>
      <mousebind button="Down" action="Click"><action name="Unshade"/></mousebind>
    </context>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Middle" action="Press"><action name="Focus"/></mousebind>
      <mousebind button="Right" action="Press"><action name="Focus"/></mousebind>
    </context>
    <context name="Desktop">
      <mousebind button="Up" action="Click"><action name="GoToDesktop"><to>previous</to></action></mousebind>
      <mousebind button="Down" action="Click"><action name="GoToDesktop"><to>next</to></action></mousebind>
    </context>
  </mouse>
</openbox_config>
)";

void configureWindowManager(const MouseDesk& desk)
{
    const auto folder = desk.desktop.configFolder() / "openbox";
    write(folder / "rc.xml", recordedConfiguration);
    run({.command = {"openbox", "--reconfigure"}}, timeToStart);
    const auto isRead = [&] {
        const auto area = desk.server.values(desk.server.root(), "_NET_WORKAREA");
        return area.size() > 1 && area[1] == 2;
    };
    if (!eventually(isRead))
        fatalError("The window manager does not read its configuration.\n" + desk.desktop.output());
}

} // namespace

RecordedDesk::RecordedDesk()
{
    configureWindowManager(desk);
    const auto begin = [this] { record_.emplace(desk, [this] { return state(); }); };
    begin();
    note("at the start");
    begin();
}

void RecordedDesk::note(const std::string& heading)
{
    record_->note(heading);
    one.forget();
    two.forget();
}

std::string RecordedDesk::state()
{
    std::vector<std::string> lines{
        "One: " + textOf(desk.windows.areaOf(one.id())),
        "Two: " + textOf(desk.windows.areaOf(two.id())),
        "Terminal: " + textOf(desk.windows.areaOf(terminal.window())) + " " + terminal.text(),
    };
    for (const auto& window : windowsOnScreen())
        lines.push_back("on screen: " + textOf(window));
    for (const auto& line : one.lines())
        lines.push_back("One: " + line);
    for (const auto& line : two.lines())
        lines.push_back("Two: " + line);
    lines.push_back(one.drags() > 0 ? "One: dragged" : "One: not dragged");
    const auto pointer = one.pointer();
    lines.push_back("pointer: " + std::to_string(pointer.x) + "," + std::to_string(pointer.y));
    for (const auto& held : one.held())
        lines.push_back("held: " + held);
    auto all = commonState(desk);
    for (const auto& line : lines)
        all += line + "\n";
    return all;
}

std::vector<ScreenArea> RecordedDesk::windowsOnScreen() const
{
    const auto& server = desk.server;
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(server.get(), xcb_query_tree(server.get(), server.root()), nullptr));
    std::vector<ScreenArea> areas;
    if (!tree)
        return areas;
    const auto* children = xcb_query_tree_children(tree.get());
    for (int index = 0; index < xcb_query_tree_children_length(tree.get()); ++index) {
        const XReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            server.get(), xcb_get_window_attributes(server.get(), children[index]), nullptr));
        const auto area = desk.windows.areaOf(children[index]);
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE)
            areas.push_back(area);
    }
    return areas;
}

void RecordedDesk::waitForTyped(const std::string& text) const { terminal.receives(text); }

} // namespace brindlex
