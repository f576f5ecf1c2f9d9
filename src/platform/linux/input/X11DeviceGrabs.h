#pragma once

#include "platform/linux/input/TapDemand.h"
#include "platform/linux/input/X11InputDevices.h"

#include <map>
#include <set>
#include <span>

namespace brindlex {

/// Takes devices away from the applications, as little and as seldom as the demand allows.
///
/// A taken device floats: its events come to the connection alone. A device that is taken for a
/// trigger floats from the press until the last of its buttons, or the key that was pressed, is up.
/// No window notices. All is given back the moment the connection ends.
class X11DeviceGrabs {
public:
    explicit X11DeviceGrabs(X11Connection& connection) : connection_(connection) { }

    /// Requests from the server what the demand lacks and gives back what it has too much. False
    /// when something is left to be done: another program holds a device or a trigger of one, which
    /// the log says once, or a device would have to be given back while `mayLetGo` forbids it, as a
    /// button is held.
    bool apply(const TapDemand& demand, std::span<const X11InputDevice> devices, bool mayLetGo);

    /// Whether the device is taken all the time.
    bool isTaken(std::uint16_t device) const;

    /// Whether the device is taken, or can be by a trigger.
    bool mayHold(std::uint16_t device) const;

    /// Whether no device is taken, nor can be by a trigger.
    bool isNothing() const;

    /// The device has gone, or is switched off and may come back: nothing is taken of it any more.
    void forget(std::uint16_t device);

private:
    struct Grab {
        bool isTaken = false;
        /// Whether the log already says that another program holds it.
        bool isReported = false;
        std::set<TapDemand::Trigger> triggers{};
        /// Those of them that another program holds, with some modifiers at least.
        std::set<TapDemand::Trigger> refused{};

        bool isNothing() const { return !isTaken && triggers.empty(); }
    };

    /// Whether nobody else holds the device.
    bool take(const X11InputDevice& device);
    static void report(const X11InputDevice& device, Grab& grab, bool wantsAll);
    void giveBack(const X11InputDevice& device);
    void setTriggers(
        const X11InputDevice& device, Grab& grab, const std::set<TapDemand::Trigger>& triggers);
    void giveBackTriggers(std::uint16_t device, std::uint8_t grabType, Grab& grab,
        const std::set<TapDemand::Trigger>& kept);

    X11Connection& connection_;
    std::map<std::uint16_t, Grab> grabs_;
};

} // namespace brindlex
