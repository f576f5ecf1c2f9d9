#pragma once

#include <cstdint>

namespace brindlex {

/// How often the program has asked for memory so far.
std::int64_t countedAllocations();

} // namespace brindlex
