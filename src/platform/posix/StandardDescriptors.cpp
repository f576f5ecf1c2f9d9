#include "platform/posix/StandardDescriptors.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace brindlex {

void openStandardDescriptors()
{
    // The lowest free number is given out first.
    for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number)
        if (::fcntl(number, F_GETFD) < 0 && errno == EBADF)
            static_cast<void>(::open("/dev/null", O_RDWR | O_NOCTTY));
}

} // namespace brindlex
