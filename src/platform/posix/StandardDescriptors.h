#pragma once

namespace brindlex {

/// Opens those of the standard descriptors 0, 1 and 2 that the process was started without on
/// /dev/null, so that no file or socket of the program gets their numbers and what is printed.
void openStandardDescriptors();

} // namespace brindlex
