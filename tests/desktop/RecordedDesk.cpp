#include "desktop/RecordedDesk.h"

#include "foundation/FatalError.h"

#include <algorithm>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// A desktop that is the same for this long has done what it was to do.
constexpr auto restfulState = 120ms;
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

std::string text(const ScreenArea& area)
{
    return std::to_string(area.x) + "," + std::to_string(area.y) + " " + std::to_string(area.width)
        + "x" + std::to_string(area.height);
}

} // namespace

RecordedDesk::RecordedDesk()
{
    configureWindowManager(desk);
    note("at the start");
    record_.clear();
}

void RecordedDesk::note(const std::string& heading)
{
    desk.settle();
    auto now = state();
    const auto isSteady = [&] {
        now = state();
        return throughout(restfulState, [&] { return state() == now; });
    };
    if (!eventually(isSteady))
        record_ += "never still\n";
    record_ += "# " + heading + "\n" + now;
    one.forget();
    two.forget();
}

std::string RecordedDesk::state()
{
    std::vector<std::string> lines{
        "front: " + titleOfActive(),
        "desktop: " + std::to_string(desk.currentDesktop()),
        "One: " + text(desk.windows.areaOf(one.id())),
        "Two: " + text(desk.windows.areaOf(two.id())),
        "Terminal: " + text(desk.windows.areaOf(terminal.window())) + " " + terminal.text(),
        "selected: " + selectedText(),
    };
    for (const auto& window : windowsOnScreen())
        lines.push_back("on screen: " + text(window));
    for (const auto& line : one.lines())
        lines.push_back("One: " + line);
    for (const auto& line : two.lines())
        lines.push_back("Two: " + line);
    lines.push_back(one.drags() > 0 ? "One: dragged" : "One: not dragged");
    const auto pointer = one.pointer();
    lines.push_back("pointer: " + std::to_string(pointer.x) + "," + std::to_string(pointer.y));
    for (const auto& held : one.held())
        lines.push_back("held: " + held);
    std::string all;
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

std::string RecordedDesk::titleOfActive() const
{
    const auto active = desk.windows.active();
    return active == XCB_WINDOW_NONE ? "none" : desk.windows.titleOf(active);
}

std::string RecordedDesk::selectedText() const
{
    const auto& server = desk.server;
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        server.get(), xcb_get_selection_owner(server.get(), XCB_ATOM_PRIMARY), nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return "nothing";
    const auto window = xcb_generate_id(server.get());
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window, server.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_convert_selection(server.get(), window, XCB_ATOM_PRIMARY, XCB_ATOM_STRING,
        server.atom("BRINDLEX_TEXT"), XCB_CURRENT_TIME);
    server.sync();
    std::string selected;
    eventually(
        [&] {
            selected = server.text(window, "BRINDLEX_TEXT");
            return !selected.empty();
        },
        200ms);
    xcb_destroy_window(server.get(), window);
    return selected;
}

void RecordedDesk::waitUntilStill() const
{
    // A hand is no faster than that what it drags follows.
    constexpr auto moment = 15ms;
    desk.mouse.settle();
    eventually([&] { return staysTheSame(moment, [&] { return desk.timesAtRest(); }); });
}

void RecordedDesk::movePointer(int x, int y)
{
    desk.settle();
    one.movePointer({x, y});
    // What moves by itself from there begins where the pointer is.
    desk.mouse.move(1, 0);
    desk.mouse.move(-1, 0);
    desk.settle();
}

void RecordedDesk::drag(int button, int x, int y)
{
    constexpr int steps = 10;
    desk.mouse.press(button);
    waitUntilStill();
    for (int step = 0; step < steps; ++step) {
        desk.mouse.move(double(x) / steps, double(y) / steps);
        waitUntilStill();
    }
    desk.mouse.release(button);
}

void RecordedDesk::click(int button, int times)
{
    for (int time = 0; time < times; ++time) {
        desk.mouse.click(button);
        // A terminal takes a press in the very millisecond of the release before for one that came
        // weeks later.
        waitUntilStill();
    }
}

void RecordedDesk::stroke(std::uint8_t key)
{
    desk.keyboard.stroke(key);
    desk.settle();
}

void RecordedDesk::waitForTyped(const std::string& text) const { terminal.receives(text); }

void RecordedDesk::waitForLine(const std::string& line)
{
    eventually([&] { return ("\n" + state()).find("\n" + line + "\n") != std::string::npos; });
}

} // namespace brindlex
