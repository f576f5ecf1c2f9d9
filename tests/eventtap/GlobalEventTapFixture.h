#pragma once

#include "eventtap/GlobalEventTap.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMouse.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// A tap of a session whose permissions, mouse and keys a test plays.
struct GlobalEventTapTest : testing::Test {
    using Lines = std::vector<std::string>;
    using Masks = std::vector<EventMask>;

    static constexpr EventMask presses
        = eventMask(EventType::otherMouseDown, EventType::otherMouseUp);
    static constexpr EventMask keyPresses = eventMask(EventType::keyDown);
    static constexpr EventMask wheel = eventMask(EventType::scrollWheel);

    /// A handler that notes its name and returns the verdict.
    GlobalEventTap::Handler noting(std::string name, EventVerdict verdict = EventVerdict::pass)
    {
        return [this, name = std::move(name), verdict](const Event&) {
            calls.push_back(name);
            return verdict;
        };
    }

    RecordedLog log;
    SimulatedInput input;
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    SimulatedMouse mouse{input};
    SimulatedKeyboard keyboard{input};
    Lines calls;
    GlobalEventTap tap{input, permissions, activation};
};

} // namespace brindlex
