#include "foundation/FileHandle.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <thread>
#include <unistd.h>

namespace brindlex {
namespace {

bool isOpen(int descriptor) { return ::fcntl(descriptor, F_GETFD) >= 0; }

TEST(FileHandle, holdsNothingUnlessGivenADescriptor)
{
    EXPECT_FALSE(FileHandle());
    EXPECT_FALSE(FileHandle(-1));
    EXPECT_TRUE(FileHandle().close());
}

TEST(FileHandle, closesWhenItEnds)
{
    int descriptor = -1;
    {
        const FileHandle handle(::open("/dev/null", O_WRONLY));
        descriptor = handle.descriptor();
        EXPECT_TRUE(handle);
        EXPECT_TRUE(isOpen(descriptor));
    }
    EXPECT_FALSE(isOpen(descriptor));
}

TEST(FileHandle, movesWhatItHoldsAndClosesWhatItHeld)
{
    FileHandle first(::open("/dev/null", O_WRONLY));
    FileHandle second(::open("/dev/null", O_WRONLY));
    const int moved = first.descriptor();
    const int replaced = second.descriptor();

    second = std::move(first);

    EXPECT_EQ(second.descriptor(), moved);
    EXPECT_TRUE(isOpen(moved));
    EXPECT_FALSE(isOpen(replaced));
    const FileHandle third(std::move(second));
    EXPECT_EQ(third.descriptor(), moved);
}

TEST(FileHandle, writesAllBytesAlsoInManySteps)
{
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    FileHandle writer(ends[1]);
    const FileHandle reader(ends[0]);
    const std::string content(1'000'000, 'x');
    std::string received;
    std::thread reading([&] {
        char bytes[10'000];
        for (;;) {
            const auto count = ::read(reader.descriptor(), bytes, sizeof bytes);
            if (count <= 0)
                return;
            received.append(bytes, static_cast<std::size_t>(count));
        }
    });

    EXPECT_TRUE(writer.writeAll(content));
    writer.close();
    reading.join();

    EXPECT_EQ(received, content);
}

TEST(FileHandle, saysWhyBytesCouldNotBeWritten)
{
    const FileHandle full(::open("/dev/full", O_WRONLY));
    EXPECT_TRUE(full.writeAll(""));
    EXPECT_FALSE(full.writeAll("x"));
    EXPECT_EQ(errno, ENOSPC);

    EXPECT_FALSE(FileHandle().writeAll("x"));
    EXPECT_EQ(errno, EBADF);
}

} // namespace
} // namespace brindlex
