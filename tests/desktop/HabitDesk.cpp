#include "desktop/HabitDesk.h"

#include "foundation/FatalError.h"
#include "support/hardware/Keycodes.h"

#include <algorithm>
#include <cstdlib>
#include <span>

namespace brindlex {
namespace {

using namespace keycode;

constexpr ScreenArea placeOfApplication{60, 60, 600, 500};

/// From the upper left corner of the window's contents.
EventLogWindow::Position firstWordOf(const std::string& toolkit)
{
    // Qt has a menu bar and margins.
    return toolkit == "qt6" ? EventLogWindow::Position{24, 402} : EventLogWindow::Position{12, 360};
}

ScreenArea distance(const ScreenArea& from, const ScreenArea& to)
{
    return {to.x - from.x, to.y - from.y, to.width - from.width, to.height - from.height};
}

} // namespace

Customs customsOf(WindowManager manager)
{
    switch (manager) {
    case WindowManager::kwin:
        return {super, rightButton, ModifierSet::option, {control, f2}, {control, f1}, {super, d},
            {"the desktop shown and hidden"}};
    case WindowManager::mutter:
        return {super, middleButton, ModifierSet::option, {control, alt, right},
            {control, alt, left}, {control, super, d},
            {"a change of size with a key", "the desktop shown and hidden", "the menu of a window",
                "typing with two layouts"}};
    case WindowManager::xfwm4:
        return {alt, rightButton, ModifierSet::command, {control, alt, right}, {control, alt, left},
            {control, alt, d}};
    default:
        return {alt, rightButton, ModifierSet::command, {control, alt, right}, {control, alt, left},
            {super, d}};
    }
}

HabitDesk::HabitDesk(WindowManager manager, const std::string& toolkit)
    : desk({.windowManager = manager}), customs(customsOf(manager)),
      application(desk.desktop, desk.windows, toolkitWindow(toolkit)),
      firstWord_(firstWordOf(toolkit))
{
    const auto stands = [this] {
        desk.windows.place(application.window(), placeOfApplication);
        desk.settle();
        const auto area = desk.windows.areaOf(application.window());
        return area.width == placeOfApplication.width && area.height == placeOfApplication.height;
    };
    if (!eventually(stands))
        fatalError("The window manager does not place the application");
}

void HabitDesk::startProgram()
{
    auto config = everything();
    const auto use = [&](auto& bindings) {
        for (auto& binding : bindings)
            if (binding.modifiers == ModifierSet::command)
                binding.modifiers = customs.free;
    };
    use(config.gesture.bindings);
    use(config.click.bindings);
    desk.start(config);
}

void HabitDesk::begin(const std::string& habit)
{
    desk.windows.activate(application.window());
    desk.settle();
    applicationBefore_ = desk.windows.areaOf(application.window());
    terminalBefore_ = desk.windows.areaOf(terminal.window());
    terminal.forget();
    record_.note(habit);
}

void HabitDesk::pointAtTitleBar() const
{
    constexpr int aboveContents = 8;
    const auto area = desk.windows.areaOf(application.window());
    hand.pointAt(area.centreX(), area.y - aboveContents);
}

void HabitDesk::pointAtPlane() const
{
    const auto area = desk.windows.areaOf(application.window());
    hand.pointAt(area.centreX(), area.y + area.height * 2 / 5);
}

void HabitDesk::pointAtFirstWord() const
{
    const auto area = desk.windows.areaOf(application.window());
    hand.pointAt(area.x + firstWord_.x, area.y + firstWord_.y);
}

std::string HabitDesk::state() const
{
    const auto& windows = desk.windows;
    return commonState(desk) + "application: "
        + textOf(distance(applicationBefore_, windows.areaOf(application.window()))) + " "
        + application.title()
        + "\nterminal: " + textOf(distance(terminalBefore_, windows.areaOf(terminal.window())))
        + " " + terminal.text() + "\nmenu: " + (showsMenu() ? "open" : "none") + "\n";
}

bool HabitDesk::showsMenu() const
{
    constexpr int near = 12;
    const auto& server = desk.server;
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(server.get(), xcb_query_tree(server.get(), server.root()), nullptr));
    const XReply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        server.get(), xcb_query_pointer(server.get(), server.root()), nullptr));
    if (!tree || !pointer)
        return false;
    const std::span windows(xcb_query_tree_children(tree.get()),
        static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
    return std::ranges::any_of(windows, [&](xcb_window_t window) {
        const auto area = desk.windows.areaOf(window);
        return area.width > near && std::abs(area.x - pointer->root_x) < near
            && std::abs(area.y - pointer->root_y) < near && desk.windows.isOnScreen(window);
    });
}

} // namespace brindlex
