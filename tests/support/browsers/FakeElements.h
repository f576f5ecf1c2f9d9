#pragma once

#include "foundation/Geometry.h"
#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brindlex {

/// A program on the accessibility bus of the desktop whose windows have things in them, and that
/// behaves badly when it is told to.
class FakeElements {
public:
    struct Element {
        /// The number of an AT-SPI role.
        std::uint32_t role = 0;
        std::string roleName{};
        std::string name{};
        /// On the screen.
        Rect area{};
        /// The place in the list of what it lies in; the program itself for windows.
        int parent = -1;
    };

    /// How it replies to every question about its elements.
    enum class Behaviour {
        replies,
        /// It knows where things are in its window and not where that is on the screen.
        ofWindow,
        silent,
        /// Numbers where everything else belongs.
        garbage,
        /// Each element has itself at every point.
        circular,
        /// Names of a million letters.
        huge,
    };

    /// Starts it and waits until it is on the bus.
    FakeElements();

    int process() const { return program_.id(); }

    /// What it offers from the next question on.
    void offer(
        const std::vector<Element>& elements, Behaviour behaviour = Behaviour::replies) const;

private:
    TemporaryFolder folder_;
    ChildProcess program_;
};

} // namespace brindlex
