#pragma once

#include "foundation/Cases.h"
#include "foundation/Geometry.h"
#include "mouse/MouseConfig.h"
#include "support/scenarios/ScenarioExecutor.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What changes around the input: the settings and the computer.
struct MouseStageChange {
    /// A setting changes, such as "gestures off".
    struct Set {
        ScenarioWords setting{};
    };
    struct SetPermission {
        bool isGiven = false;
    };
    /// The program becomes active.
    struct Activate { };
    struct BringToFront {
        std::string application{};
    };
    struct ShowCursor {
        std::string name{};
    };
    struct PlaceWindow {
        Rect frame{};
    };
    /// An element of that role is under the cursor.
    struct PlaceElement {
        std::string role{};
    };

    using Any
        = Cases<Set, SetPermission, Activate, BringToFront, ShowCursor, PlaceWindow, PlaceElement>;
};

/// What happens in one step of a scenario of the mouse.
struct MouseScenarioStep {
    struct Wait { };
    /// What a mouse does: "down button4 100,100 with command", "drag button4 130,100", "wheel 3
    /// -2".
    struct Input {
        enum class Kind { down, up, drag, wheel, pixels };

        Kind kind{};
        /// The first mouse or the second.
        int mouse = 1;
        std::int64_t button = 0;
        /// Where the cursor is at that; always there for a drag.
        std::optional<Point> location{};
        /// Of the wheel: lines or pixels, positive up and to the left.
        std::int64_t vertical = 0;
        std::int64_t horizontal = 0;
        /// The modifiers that are held meanwhile.
        std::uint64_t flags = 0;
    };
    /// The system switches the tap off.
    struct SwitchTapOff { };

    using Any = Cases<Wait, Input, SwitchTapOff, MouseStageChange::Any>;
};

/// The verbs of the scenarios in `tests/mouse/scenarios`.
struct MouseVerbs {
    struct Preparation {
        MouseConfig config{};
        std::vector<MouseStageChange::Any> arrangement{};
    };
    using Step = MouseScenarioStep::Any;

    static constexpr std::array<std::string_view, 2> players{"memory", "hardware"};

    static void prepare(Preparation& preparation, ScenarioWords& words);
    static std::optional<std::string> complete(Preparation&) { return {}; }
    static Step step(ScenarioWords& words);
};

using MouseScenario = Scenario<MouseVerbs>;
using MouseScenarioExecutor = ScenarioExecutor<MouseVerbs>;

} // namespace brindlex
