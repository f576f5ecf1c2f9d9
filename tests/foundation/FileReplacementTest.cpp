#include "foundation/FileReplacementFixture.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

fs::perms permissionsOf(const fs::path& file) { return fs::status(file).permissions(); }

TEST_F(FileReplacement, makesANewFileThatOnlyTheUserMayRead)
{
    EXPECT_EQ(replaceFile(file, "content"), Replaced(Done{}));

    EXPECT_EQ(contentOf(file), "content");
    EXPECT_EQ(permissionsOf(file), fs::perms(0600));
    EXPECT_EQ(namesIn(folder.path()), Names{"config.json"});
}

TEST_F(FileReplacement, givesANewFileTheAskedPermissionsWhateverTheMask)
{
    const auto before = ::umask(0777);
    const auto replaced = replaceFile(file, "x", fs::perms(0754));
    ::umask(before);

    EXPECT_TRUE(replaced);
    EXPECT_EQ(permissionsOf(file), fs::perms(0754));
}

TEST_F(FileReplacement, keepsThePermissionsOfTheOldFile)
{
    for (const auto permissions : {fs::perms(0644), fs::perms(0400), fs::perms(0755)}) {
        write(file, "old");
        fs::permissions(file, permissions);

        EXPECT_TRUE(replaceFile(file, "new", fs::perms(0600)));

        EXPECT_EQ(permissionsOf(file), permissions);
        EXPECT_EQ(contentOf(file), "new");
        fs::remove(file);
    }
}

TEST_F(FileReplacement, makesAnotherFileAndLeavesTheOldOneToWhoHasItOpen)
{
    write(file, "old");
    const int reader = ::open(file.c_str(), O_RDONLY);

    EXPECT_TRUE(replaceFile(file, "new and longer"));

    char bytes[16] = {};
    EXPECT_EQ(::read(reader, bytes, sizeof bytes), 3);
    EXPECT_STREQ(bytes, "old");
    ::close(reader);
}

TEST_F(FileReplacement, takesAnyBytes)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    for (const auto& content : {std::string(), bytes, std::string(3 * oneMebibyte, '\xFF')}) {
        EXPECT_TRUE(replaceFile(file, content));
        EXPECT_EQ(readFile(file, 4 * oneMebibyte), Read(content));
    }
}

TEST_F(FileReplacement, takesTheLongestNameThatTheSystemTakes)
{
    const auto longName = folder.path() / std::string(255, 'n');
    EXPECT_TRUE(replaceFile(longName, "content"));
    EXPECT_EQ(contentOf(longName), "content");
    EXPECT_EQ(namesIn(folder.path()), Names{std::string(255, 'n')});

    const auto tooLong = folder.path() / std::string(256, 'n');
    EXPECT_EQ(replaceFile(tooLong, "content"), fail(FileProblem{tooLong, "File name too long"}));
}

TEST_F(FileReplacement, takesANameWithoutAFolder)
{
    const auto before = fs::current_path();
    fs::current_path(folder.path());
    const auto replaced = replaceFile("bare", "content");
    fs::current_path(before);

    EXPECT_TRUE(replaced);
    EXPECT_EQ(contentOf(folder.path() / "bare"), "content");
}

TEST_F(FileReplacement, replacesTheFileThatALinkLeadsTo)
{
    fs::create_directory(folder.path() / "elsewhere");
    const auto target = folder.path() / "elsewhere" / "real.json";
    write(target, "old");
    fs::create_symlink("elsewhere/real.json", folder.path() / "second");
    fs::create_symlink(folder.path() / "second", file);

    EXPECT_TRUE(replaceFile(file, "new"));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "second"));
    EXPECT_EQ(contentOf(target), "new");
    EXPECT_EQ(namesIn(folder.path() / "elsewhere"), Names{"real.json"});
}

TEST_F(FileReplacement, makesTheFileThatADanglingLinkLeadsTo)
{
    fs::create_symlink("missing.json", file);

    EXPECT_TRUE(replaceFile(file, "new"));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(contentOf(folder.path() / "missing.json"), "new");
}

TEST_F(FileReplacement, refusesLinksInACircle)
{
    fs::create_symlink("config.json", folder.path() / "other");
    fs::create_symlink("other", file);

    EXPECT_EQ(replaceFile(file, "new"), fail(FileProblem{file, "Is not a regular file"}));
    EXPECT_EQ(namesIn(folder.path()), (Names{"config.json", "other"}));
}

TEST_F(FileReplacement, refusesWhatIsNotARegularFile)
{
    const auto refusal = [](const fs::path& path) {
        return Replaced(fail(FileProblem{path, "Is not a regular file"}));
    };
    EXPECT_EQ(replaceFile(folder.path(), "x"), refusal(folder.path()));
    EXPECT_EQ(replaceFile("/dev/full", "x"), refusal("/dev/full"));

    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(replaceFile(file, "x"), refusal(file));
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(FileReplacement, namesThePathAndTheSystemsWordsOfAFailure)
{
    write(file, "a file");
    const auto below = file / "below.json";
    EXPECT_EQ(replaceFile(below, "x"), fail(FileProblem{below, "Not a directory"}));

    const auto nowhere = folder.path() / "missing" / "x.json";
    EXPECT_EQ(replaceFile(nowhere, "x"), fail(FileProblem{nowhere, "No such file or directory"}));

    const auto replaced = replaceFile("/proc/brindlex.json", "x");
    ASSERT_FALSE(replaced);
    EXPECT_EQ(replaced.error().path, "/proc/brindlex.json");
    EXPECT_NE(replaced.error().reason, "");
}

} // namespace
} // namespace brindlex
