#pragma once

#include "platform/ProgramBundle.h"

#include <filesystem>

namespace brindlex {

/// What the build says of the program.
ProgramBundle programBuild();

/// The path of the program that runs; where it has been replaced since, that of the new one.
std::filesystem::path runningProgramFile();

} // namespace brindlex
