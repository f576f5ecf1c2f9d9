#include "desktop/MouseDesk.h"

#include "foundation/FatalError.h"
#include "preferences/UserDefaultsStorageBox.h"
#include "support/processes/ProcessTable.h"

#include <algorithm>
#include <xcb/xinput.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// How long nothing further must come for what came to be all.
constexpr auto longEnoughForEvents = 150ms;
/// Programs that sleep this long wait for nobody but the user.
constexpr auto restfulWindows = 40ms;

} // namespace

MouseDesk::MouseDesk(VirtualDesktop::Options options)
    : desktop([&] {
          options.server = VirtualDesktop::Server::withPlayedHardware;
          return options;
      }())
{
    const XReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        server.get(), xcb_input_xi_query_version(server.get(), 2, 2), nullptr));
    if (!version)
        fatalError("The X server has no second version of its input");
    // Without acceleration what is played says where the pointer ends, however fast it is played.
    constexpr int asItIs = 1;
    xcb_change_pointer_control(server.get(), asItIs, asItIs, 0, true, true);
    server.sync();
    // The driver counts what was played once anything was.
    mouse.move(1, 0);
    mouse.settle();
}

void MouseDesk::set(const MouseConfig& config) const
{
    setPreference("mouseConfig", UserDefaultsStorageBox<MouseConfig>{config}.rawValue());
}

void MouseDesk::setPreference(const std::string& key, const nlohmann::json& value) const
{
    auto preferences = files.readPreferences();
    if (!preferences.is_object())
        preferences = nlohmann::json::object();
    preferences[key] = value;
    files.writePreferences(preferences);
}

void MouseDesk::start(const MouseConfig& config)
{
    set(config);
    program.emplace(desktop);
    if (!program->launches())
        fatalError("The program did not launch.\n" + program->report());
    settle();
}

void MouseDesk::settle() const
{
    for (const PlayedDevice* device :
        std::initializer_list<const PlayedDevice*>{&mouse, &secondMouse, &keyboard})
        device->settle();
    eventually([this] { return staysTheSame(restfulWindows, [this] { return timesAtRest(); }); });
    server.sync();
}

std::optional<long> MouseDesk::timesAtRest() const
{
    if (program && waitsForReply(program->process()))
        return std::nullopt;
    if (const auto manager = desktop.windowManager(); manager && waitsForReply(*manager))
        return std::nullopt;
    long sum = 0;
    for (const auto process : children()) {
        const auto times = timesAsleep(process);
        if (!times)
            return std::nullopt;
        sum += *times;
    }
    return sum;
}

bool MouseDesk::receives(EventLogWindow& window, const Lines& expected) const
{
    return eventually([&] { return window.lines().size() >= expected.size(); })
        && throughout(longEnoughForEvents, [&] { return window.lines() == expected; });
}

std::uint32_t MouseDesk::currentDesktop() const
{
    const auto values = server.values(server.root(), "_NET_CURRENT_DESKTOP");
    return values.empty() ? 0 : values.front();
}

bool MouseDesk::showsDesktop(std::uint32_t number) const
{
    return eventually([&] { return currentDesktop() == number; });
}

bool MouseDesk::isAnyDeviceTaken() const
{
    const XReply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        server.get(), xcb_input_xi_query_device(server.get(), XCB_INPUT_DEVICE_ALL), nullptr));
    if (!reply)
        return false;
    for (auto devices = xcb_input_xi_query_device_infos_iterator(reply.get()); devices.rem;
         xcb_input_xi_device_info_next(&devices))
        if (devices.data->type == XCB_INPUT_DEVICE_TYPE_FLOATING_SLAVE)
            return true;
    return false;
}

bool MouseDesk::givesDevicesBack() const
{
    return eventually([this] { return !isAnyDeviceTaken(); });
}

MouseGestureBinding gesture(
    MouseButton button, ModifierSet modifiers, MouseDirection direction, MouseAction::Any action)
{
    return {Uuid::random(), button, modifiers, direction, std::move(action)};
}

MouseClickBinding click(MouseButton button, ModifierSet modifiers, MouseAction::Any action)
{
    return {Uuid::random(), button, modifiers, std::move(action)};
}

MouseConfig everything()
{
    MouseConfig config;
    config.gesture.bindings = {
        gesture(MouseButton::button4, {}, MouseDirection::left, MouseAction::Plain::back),
        gesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward),
        gesture(MouseButton::button4, {}, MouseDirection::up, MouseAction::Plain::switchSpaceRight),
        gesture(
            MouseButton::button4, {}, MouseDirection::down, MouseAction::Plain::switchSpaceLeft),
        gesture(MouseButton::left, ModifierSet::command, MouseDirection::up,
            MouseAction::Plain::missionControl),
    };
    config.click.bindings
        = {click(MouseButton::button3, ModifierSet::command, MouseAction::Plain::showDesktop)};
    config.scroll.smoothEnabled = true;
    config.scroll.smoothDuration = 0.05;
    return config;
}

} // namespace brindlex
