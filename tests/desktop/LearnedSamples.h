#pragma once

#include "desktop/ProgramDesk.h"

#include <string>
#include <vector>

namespace brindlex {

/// The sources that were learned for an application of `ProgramDesk`, oldest first.
std::vector<std::string> samples(const ProgramFiles& files, const std::string& className);
/// The same for an application by its identifier.
std::vector<std::string> samplesOf(const ProgramFiles& files, const std::string& application);

} // namespace brindlex
