#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace brindlex {

/// Keeps presses and releases in pairs on their way from the devices to the applications: a release
/// goes where its press went, so that no application is left with a key or button held, nor with a
/// release of nothing.
///
/// For systems on which the program itself hands on what it has intercepted. What it posts counts
/// as one more device: of a keystroke whose press a hotkey has swallowed, the release is not to go
/// on.
class PressLedger {
public:
    using DeviceIdentifier = std::uint64_t;
    enum class Kind { button, key };

    /// Notes a press and whether it went on to the applications. A second press without a release
    /// in between, as a held key repeats it, adds nothing. Whether the press opened a pair that is
    /// to go on.
    bool pressed(DeviceIdentifier device, Kind kind, std::int64_t code, bool wentOn);

    /// Whether the release has to go on; the pair is then closed. True for what was never pressed
    /// here, since the press came before the program did.
    bool released(DeviceIdentifier device, Kind kind, std::int64_t code);

    /// Whether a press of the device waits for its release.
    bool isOpen(DeviceIdentifier device, Kind kind, std::int64_t code) const;

    struct Press {
        Kind kind{};
        std::int64_t code = 0;

        auto operator<=>(const Press&) const = default;
    };

    /// Closes what a device that has gone has left open; returns the releases that have to go on
    /// in its place.
    std::vector<Press> forget(DeviceIdentifier device);

    /// Whether any press is open.
    bool isEmpty() const { return pressesThatWentOn_.empty(); }

private:
    std::map<std::pair<DeviceIdentifier, Press>, bool> pressesThatWentOn_;
};

} // namespace brindlex
