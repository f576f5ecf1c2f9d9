#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/Date.h"
#include "inputmethod/SwitchDecision.h"

#include <optional>
#include <string>

namespace brindlex {

/// The memory of the last automatic switch, by which a user's override is recognised.
struct InputMethodAutoSwitchOverrideState {
    std::optional<InputMethodAutoSwitchContext::Any> lastVisitedContext{};
    std::optional<InputMethodAutoSwitchContext::Any> lastAutomaticContext{};
    std::optional<std::string> lastAutomaticInputSourceID{};

    bool operator==(const InputMethodAutoSwitchOverrideState&) const = default;
};

/// Everything that the switching of input sources remembers between two events.
struct SwitchState {
    enum class Lifecycle { stopped, observing, observingWithBrowserPolling };

    /// The echo of the program's own selection, expected until the deadline; empty when none is.
    struct IgnoreWindow {
        std::optional<std::string> inputSourceID{};
        std::optional<Date> deadline{};

        bool operator==(const IgnoreWindow&) const = default;
    };

    /// The application that is watched for manual changes.
    struct LearningSession {
        AppIdentifier app{};
        std::optional<std::string> lastObservedInputSourceID{};

        bool operator==(const LearningSession&) const = default;
    };

    /// Who has had a hand in the selected source, as far as rules depend on it.
    struct Standing {
        /// A person has chosen since the last activation.
        bool isChosenHere = false;
        /// A person has chosen since the last automatic switch.
        bool isChosenSinceSwitch = false;
        /// How often the desktop has undone a selection since the last activation.
        int timesUndone = 0;
        /// The log has said that selections are undone.
        bool isUndoingReported = false;

        bool operator==(const Standing&) const = default;
    };

    Lifecycle lifecycle = Lifecycle::stopped;
    /// The application last reported as active.
    std::optional<std::string> frontmostBundleID{};
    /// The input source last seen.
    std::optional<std::string> lastInputSourceID{};
    IgnoreWindow ignoreWindow{};
    InputMethodAutoSwitchOverrideState override{};
    std::optional<LearningSession> learning{};
    Standing standing{};

    bool operator==(const SwitchState&) const = default;
};

} // namespace brindlex
