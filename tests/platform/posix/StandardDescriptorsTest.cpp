#include "platform/posix/StandardDescriptors.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace brindlex {
namespace {

bool isNullDevice(int descriptor)
{
    struct stat null = {};
    struct stat status = {};
    return ::stat("/dev/null", &null) == 0 && ::fstat(descriptor, &status) == 0
        && status.st_rdev == null.st_rdev && S_ISCHR(status.st_mode);
}

/// In a process that was started without some of them: which lead to /dev/null afterwards, as a sum
/// of 1, 2 and 4.
int openedWithout(const std::vector<int>& closed)
{
    const auto child = ::fork();
    if (child == 0) {
        int pipe[2];
        static_cast<void>(!::pipe(pipe));
        for (int number = 0; number <= 2; ++number)
            ::dup2(pipe[0], number);
        for (const int number : closed)
            ::close(number);
        openStandardDescriptors();
        ::_exit((isNullDevice(0) ? 1 : 0) + (isNullDevice(1) ? 2 : 0) + (isNullDevice(2) ? 4 : 0));
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

TEST(StandardDescriptors, leadToTheNullDeviceWhereTheyAreMissing)
{
    EXPECT_EQ(openedWithout({0, 1, 2}), 1 + 2 + 4);
    EXPECT_EQ(openedWithout({1}), 2);
    EXPECT_EQ(openedWithout({0, 2}), 1 + 4);
}

TEST(StandardDescriptors, stayAsTheyAreWhereTheyAreThere) { EXPECT_EQ(openedWithout({}), 0); }

} // namespace
} // namespace brindlex
