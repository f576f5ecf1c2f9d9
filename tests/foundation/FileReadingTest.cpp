#include "foundation/FileReading.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

using Read = Result<std::optional<std::string>, FileProblem>;

constexpr std::size_t oneMebibyte = 1 << 20;

struct FileReading : testing::Test {
    TemporaryFolder folder;
    fs::path file = folder.path() / "config.json";
};

TEST_F(FileReading, returnsNothingForAMissingFile)
{
    EXPECT_EQ(readFile(file, 10), Read(std::nullopt));

    fs::create_symlink("missing", folder.path() / "dangling");
    EXPECT_EQ(readFile(folder.path() / "dangling", 10), Read(std::nullopt));
}

TEST_F(FileReading, takesUpToTheLimitAndNoByteMore)
{
    write(file, "12345");

    EXPECT_EQ(readFile(file, 5), Read("12345"));
    EXPECT_EQ(readFile(file, 4), fail(FileProblem{file, "Is larger than 4 bytes"}));
    EXPECT_EQ(readFile(file, 0), fail(FileProblem{file, "Is larger than 0 bytes"}));
    EXPECT_EQ(readFile(file, static_cast<std::size_t>(-1)), Read("12345"));

    write(file, "");
    EXPECT_EQ(readFile(file, 0), Read(""));
}

TEST_F(FileReading, readsFilesWhoseSizeTheSystemDoesNotKnow)
{
    const auto status = readFile("/proc/self/status", oneMebibyte);

    ASSERT_TRUE(status);
    EXPECT_EQ((*status)->substr(0, 5), "Name:");
    EXPECT_EQ(readFile("/proc/self/status", 20),
        fail(FileProblem{"/proc/self/status", "Is larger than 20 bytes"}));
}

TEST_F(FileReading, refusesFoldersDevicesAndPipesWithoutWaiting)
{
    const auto refusal = [](const fs::path& path) {
        return Read(fail(FileProblem{path, "Is not a regular file"}));
    };
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);

    EXPECT_EQ(readFile(file, 10), refusal(file));
    EXPECT_EQ(readFile(folder.path(), 10), refusal(folder.path()));
    EXPECT_EQ(readFile("/dev/zero", 10), refusal("/dev/zero"));
}

TEST_F(FileReading, namesThePathAndTheSystemsWordsOfAFailure)
{
    write(file, "a file");
    EXPECT_EQ(readFile(file / "below", 10), fail(FileProblem{file / "below", "Not a directory"}));

    const auto socketPath = folder.path() / "socket";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socketPath.string().copy(address.sun_path, sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(readFile(socketPath, 10), fail(FileProblem{socketPath, "No such device or address"}));
    ::close(socket);
}

} // namespace
} // namespace brindlex
