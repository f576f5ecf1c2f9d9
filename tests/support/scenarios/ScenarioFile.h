#pragma once

#include "foundation/Cases.h"
#include "foundation/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What stands in a line of a scenario file.
struct ScenarioLine {
    struct Comment {
        std::string text{};
    };
    /// The player cannot play the file.
    struct Exclusion {
        std::string player{};
        std::string reason{};
    };
    struct Preparation {
        std::string words{};
    };
    struct Step {
        int milliseconds = 0;
        std::string words{};
        /// Empty where none are written, which is not the same as "nothing".
        std::string effects{};
    };
    using Any = Cases<Comment, Exclusion, Preparation, Step>;
};

/// The lines of a scenario file, without what their words mean.
///
///     # A comment says what the scenario shows.
///     not on desktop: a real input source is not refused
///     rule org.example.Editor xkb:de::deu
///
///     0ms    start                       -> nothing
///     500ms  activate org.example.Editor -> select xkb:de::deu, hud German
///
/// `docs/formats/scenarios.md` has the grammar.
struct ScenarioFile {
    struct Line {
        std::size_t number = 0;
        ScenarioLine::Any content{};
    };

    /// Stands before every problem.
    std::string name{};
    /// But for the empty ones.
    std::vector<Line> lines{};

    bool isPlayedBy(std::string_view player) const;
    /// The whole text in the one layout that scenario files have.
    std::string text() const;
};

/// The file, or a problem such as `a.txt:4: goes back in time`.
Result<ScenarioFile, std::string> parseScenarioFile(std::string name, std::string_view text);

/// How a problem in a line of a file is written.
std::string scenarioProblem(
    const std::string& file, std::size_t lineNumber, const std::string& problem);

} // namespace brindlex
