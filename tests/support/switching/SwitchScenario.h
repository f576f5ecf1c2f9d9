#pragma once

#include "foundation/Cases.h"
#include "foundation/Date.h"
#include "foundation/Result.h"
#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What happens in one line of a scenario.
struct SwitchScenarioEvent {
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
    /// The browser shows another page; it is looked at with the next tick or activation.
    struct ShowPage {
        std::optional<std::string> host{};
    };
    struct Tick { };
    /// The system tells of a change of the source, without one.
    struct SourceChanged { };
    /// A setting changes, such as "hud" to "off".
    struct Set {
        std::string name{};
        std::string value{};
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

    using Any = Cases<Start, Stop, Activate, UserSelects, ShowPage, Tick, SourceChanged, Set,
        Refuse, Accept, Wait>;
};

/// A story of the switching of input sources: settings, then timestamped events with what went out
/// after each.
///
///     # A comment
///     plays: memory, desktop
///     source: xkb:us::eng English (US)
///     source: xkb:de::deu German
///     rule: org.example.Editor xkb:de::deu
///
///     0ms    start
///     100ms  activate org.example.Editor  -> select xkb:de::deu, hud German
///
/// The header names who can play the file, the sources with their names (the first is selected),
/// the rules (`rule:`, `website:`), applications that are browsers (`browser:`), the application
/// in front (`front:`), samples learned before (`learned: application source count`), settings
/// (`set: name value`) and when the system tells of a selection by the program (`echo: 20ms`, the
/// default, or `echo: by hand`, where the file tells it).
struct SwitchScenario {
    struct Source {
        std::string id{};
        std::string name{};
    };
    struct Step {
        Seconds time = 0;
        SwitchScenarioEvent::Any event{};
    };
    /// A line as it was written, up to the arrow; without a step, a line of the header.
    struct Line {
        std::string written{};
        std::optional<Step> step{};
    };

    std::set<std::string> players{};
    std::vector<Source> sources{};
    std::set<std::string> browsers{};
    std::optional<std::string> frontmostBundleID{};
    InputMethodConfig config{};
    SmartInputMethodConfig smartConfig{};
    /// Seconds after a selection; nothing when the file tells the echo itself.
    std::optional<Seconds> echoDelay = 0.02;
    std::vector<Line> lines{};
};

/// The scenario in a text, or what is wrong with the line of the number.
Result<SwitchScenario, std::string> parseSwitchScenario(std::string_view text);

/// Changes a setting by the name that scenarios use; false for an unknown name or value.
bool applySetting(const std::string& name, const std::string& value, InputMethodConfig& config,
    SmartInputMethodConfig& smartConfig);

/// Something that went out. What nobody outside the program could see is left out of files that a
/// desktop plays too.
struct SwitchScenarioOutcome {
    std::string text{};
    bool isVisible = true;
};

/// Plays the events of scenarios.
class SwitchScenarioExecutor {
public:
    virtual ~SwitchScenarioExecutor() = default;

    /// Puts everything in place that the header says.
    virtual void begin(const SwitchScenario& scenario) = 0;

    /// Lets time pass up to the step, does it, and answers with everything that went out since the
    /// step before.
    virtual std::vector<SwitchScenarioOutcome> perform(const SwitchScenario::Step& step) = 0;
};

/// The text of the scenario with what really went out.
std::string playSwitchScenario(const SwitchScenario& scenario, SwitchScenarioExecutor& executor);

/// The files with scenarios in a folder, by name.
std::vector<std::filesystem::path> switchScenarioFiles(const std::filesystem::path& folder);

} // namespace brindlex
