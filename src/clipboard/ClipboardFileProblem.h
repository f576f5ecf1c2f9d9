#pragma once

#include "foundation/FileProblem.h"

#include <string>

namespace brindlex {

/// The problem as it stands in lines of the log.
inline std::string inWords(const FileProblem& problem)
{
    return problem.path.string() + ": " + problem.reason;
}

} // namespace brindlex
