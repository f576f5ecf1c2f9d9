#pragma once

#include "mouse/MouseConfig.h"
#include "mouse/Scenario.h"
#include "platform/Event.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The words of scenarios, as values and back. A word that is none is a fatal error.
namespace scenarioWords {

/// "command+shift"; "nothing" or no text at all is none.
std::uint64_t flags(const std::string& text);

/// "button4" in "command+button4", and what stands before it.
struct Press {
    MouseButton button{};
    ModifierSet modifiers{};
};
Press press(const std::string& text);

/// "100,100"
Point point(const std::string& text);

double number(const std::string& text);

/// Changes the configuration by one line, such as "gesture button4 right forward", "threshold 40"
/// or "scroll smooth on". False when the line is about something else.
bool change(MouseConfig& config, const ScenarioExecutor::Words& words);

/// What a mouse does: "down button4 100,100 with command", "drag button4 130,100", "wheel 3 -2".
struct Deed {
    enum class Kind { down, up, drag, wheel, pixels };

    Kind kind{};
    std::int64_t button = 0;
    /// Where the cursor is at that; always there for a drag.
    std::optional<Point> location{};
    /// Of the wheel: lines or pixels, positive up and to the left.
    std::int64_t vertical = 0;
    std::int64_t horizontal = 0;
    /// The modifiers that are held meanwhile.
    std::uint64_t flags = 0;
};

/// Nothing when the line is not about a mouse.
std::optional<Deed> deed(ScenarioExecutor::Words words);

/// Takes "mouse2" off the beginning; whether it was there.
bool takeSecondMouse(ScenarioExecutor::Words& words);

/// "click button4 100,100", "key 30 with command", "scroll -20 0": what reached the applications.
std::vector<std::string> seen(const std::vector<Event>& events);

} // namespace scenarioWords

} // namespace brindlex
