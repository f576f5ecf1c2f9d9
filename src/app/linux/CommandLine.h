#pragma once

#include "foundation/Cases.h"
#include "platform/ProgramBundle.h"

#include <string>
#include <vector>

namespace brindlex {

/// What the program is asked for on its command line.
struct CommandLine {
    /// To run.
    struct Run {
        /// Whether nobody but the desktop asked for it: no window is to come to the front.
        bool isStartedAtLogin = false;
        bool operator==(const Run&) const = default;
    };
    /// To print the text and to end.
    struct Print {
        std::string text{};
        bool operator==(const Print&) const = default;
    };
    /// Something that it does not know; the words are for the standard error output.
    struct Refuse {
        std::string words{};
        bool operator==(const Refuse&) const = default;
    };
    using Any = Cases<Run, Print, Refuse>;

    /// What the process ends with when the command line is refused.
    static constexpr int refusedStatus = 2;
};

/// Reads the arguments of a process, the first of which names the program, as GNU programs read
/// them: options may be shortened as long as they are clear. One thread only.
CommandLine::Any readCommandLine(std::vector<std::string> arguments, const ProgramBundle& program);

} // namespace brindlex
