#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace brindlex {

/// Plays buttons beyond those that XTEST has, which are ten: while such a button is down, one of
/// the side buttons of XTEST is made to stand for it.
///
/// Each press costs a round trip, and the server notifies all programs that buttons have changed
/// places. An ordinary button costs nothing.
class X11LentButtons {
public:
    explicit X11LentButtons(X11Connection& connection) : connection_(connection) { }

    /// The pointer on which XTEST plays; its buttons that still stand for others, since a program
    /// was killed with one of them down, are themselves again.
    void setPointer(std::uint16_t pointer);

    /// What to press in place of the button: itself, as a rule. Nothing when all that could stand
    /// for it are down, or when it stands for another itself. Returns the same until `giveBack`.
    std::optional<std::uint8_t> standIn(
        std::uint8_t button, const std::function<bool(std::uint8_t)>& isDown);

    /// The button has been released.
    void giveBack(std::uint8_t button);

private:
    std::vector<std::uint8_t> places();
    void learnOwn(const std::vector<std::uint8_t>& places);
    void setPlaces();
    bool isLent(std::uint8_t place) const;

    X11Connection& connection_;
    std::uint16_t pointer_ = 0;
    std::uint8_t count_ = 10;
    std::vector<std::uint8_t> own_;
    /// The places of XTEST by the buttons that have them.
    std::map<std::uint8_t, std::uint8_t> lent_;
};

} // namespace brindlex
