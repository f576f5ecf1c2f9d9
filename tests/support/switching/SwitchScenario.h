#pragma once

#include "foundation/Cases.h"
#include "foundation/Date.h"
#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"
#include "support/scenarios/ScenarioExecutor.h"

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What happens in one step of the switching of input sources.
struct SwitchScenarioStep {
    /// The program starts, with the application in front that was activated last.
    struct Start { };
    struct Stop { };
    /// An application, or one without an identifier, comes to the front.
    struct Activate {
        std::optional<std::string> bundleID{};
    };
    /// The user, not the program, selects a source, or one that the system cannot name.
    struct UserSelects {
        std::optional<std::string> inputSourceID{};
    };
    /// The application in front brings a source of its own with it.
    struct PlaceBrings {
        std::string inputSourceID{};
    };
    /// The desktop selects a source instead of the one that the program has selected.
    struct DesktopUndoes {
        std::string inputSourceID{};
    };
    /// The browser shows another page; it is read at the next tick or activation.
    struct ShowPage {
        std::optional<std::string> host{};
    };
    struct Tick { };
    /// The system notifies of a change of the source, without one.
    struct SourceChanged { };
    /// A setting changes, such as "hud off".
    struct Set {
        ScenarioWords setting{};
    };
    /// From now on selecting the source fails.
    struct Refuse {
        std::string inputSourceID{};
    };
    /// From now on selecting the source succeeds again.
    struct Accept {
        std::string inputSourceID{};
    };
    struct Wait { };

    using Any = Cases<Wait, Start, Stop, Activate, UserSelects, ShowPage, Tick, SourceChanged, Set,
        Refuse, Accept, PlaceBrings, DesktopUndoes>;
};

/// The verbs of the scenarios in `tests/inputmethod/scenarios`.
struct SwitchVerbs {
    struct Source {
        std::string id{};
        std::string name{};
    };
    struct Preparation {
        /// The first is selected.
        std::vector<Source> sources{};
        std::set<std::string> browsers{};
        std::optional<std::string> frontmostBundleID{};
        InputMethodConfig config{};
        SmartInputMethodConfig smartConfig{};
        /// Seconds until the system notifies of a selection by the program; nothing when the file
        /// has steps for that.
        std::optional<Seconds> echoDelay = 0.02;
    };
    using Step = SwitchScenarioStep::Any;

    static constexpr std::array<std::string_view, 2> players{"memory", "desktop"};

    static void prepare(Preparation& preparation, ScenarioWords& words);
    static std::optional<std::string> complete(Preparation& preparation);
    static Step step(ScenarioWords& words);
};

using SwitchScenario = Scenario<SwitchVerbs>;
using SwitchScenarioExecutor = ScenarioExecutor<SwitchVerbs>;

} // namespace brindlex
