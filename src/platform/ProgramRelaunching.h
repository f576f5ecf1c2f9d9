#pragma once

#include "foundation/Result.h"

#include <functional>
#include <string>

namespace brindlex {

/// Starts this program once more. Main thread only.
class ProgramRelaunching {
public:
    /// Success, or the system's words for why there is no new instance.
    using Finished = std::function<void(const Result<Done, std::string>&)>;

    virtual ~ProgramRelaunching() = default;

    /// Starts a new instance of the program with the environment of this one, to come to the front.
    /// Reports on the main thread, maybe inside this call. The new instance does not end with this
    /// one.
    virtual void relaunch(Finished finished) = 0;
};

} // namespace brindlex
