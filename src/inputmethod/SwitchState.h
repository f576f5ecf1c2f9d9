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

    Lifecycle lifecycle = Lifecycle::stopped;
    /// The application last reported as active.
    std::optional<std::string> frontmostBundleID{};
    /// The input source last seen.
    std::optional<std::string> lastInputSourceID{};
    IgnoreWindow ignoreWindow{};
    InputMethodAutoSwitchOverrideState override{};
    std::optional<LearningSession> learning{};

    bool operator==(const SwitchState&) const = default;
};

} // namespace brindlex
