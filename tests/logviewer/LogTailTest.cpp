#include "logviewer/LogTail.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace brindlex {
namespace {

class LogTailTest : public testing::Test {
protected:
    LogTail tail(const std::string& content, std::uint64_t offset = 0, std::size_t most = 3)
    {
        write(file, content);
        const auto read = readLogTail(file, offset, most);
        EXPECT_TRUE(read);
        return read ? *read : LogTail{};
    }

    TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "some.log";
};

TEST_F(LogTailTest, hasTheLinesBehindTheOffset)
{
    EXPECT_EQ(tail("one\ntwo\n"), (LogTail{{"one", "two"}, 2, 8}));
    EXPECT_EQ(tail("one\ntwo\n", 4), (LogTail{{"two"}, 1, 8}));
    EXPECT_EQ(tail("one\ntwo\n", 5), (LogTail{{"wo"}, 1, 8})) << "In the middle of a line";
    EXPECT_EQ(tail("one\n", 4), (LogTail{{}, 0, 4}));
    EXPECT_EQ(tail("one\n", 99), (LogTail{{}, 0, 99}));
    EXPECT_EQ(tail(""), (LogTail{{}, 0, 0}));
}

TEST_F(LogTailTest, leavesALastLineThatIsStillBeingWritten)
{
    EXPECT_EQ(tail("one\ntw"), (LogTail{{"one"}, 1, 4}));
    EXPECT_EQ(tail("tw"), (LogTail{{}, 0, 0}));
    EXPECT_EQ(tail("one\n\xC3"), (LogTail{{"one"}, 1, 4})) << "Half a character";
}

TEST_F(LogTailTest, leavesOutEmptyLines)
{
    EXPECT_EQ(tail("\n\none\n\n\ntwo\n\n"), (LogTail{{"one", "two"}, 2, 13}));
    EXPECT_EQ(tail("\n\n"), (LogTail{{}, 0, 2}));
}

TEST_F(LogTailTest, keepsTheNewestLinesAndCountsAll)
{
    EXPECT_EQ(tail("1\n2\n3\n"), (LogTail{{"1", "2", "3"}, 3, 6}));
    EXPECT_EQ(tail("1\n2\n3\n4\n"), (LogTail{{"2", "3", "4"}, 4, 8}));
    EXPECT_EQ(tail("1\n\n2\n3\n\n4\n5\n\n"), (LogTail{{"3", "4", "5"}, 5, 13}));
}

TEST_F(LogTailTest, skipsWhatIsNotText)
{
    EXPECT_EQ(tail("one\n\xFF\ntwo\n"), (LogTail{{}, 0, 10}));
    EXPECT_EQ(tail("\xC3\n"), (LogTail{{}, 0, 2}));
    EXPECT_EQ(tail(std::string("a\0b\n", 4)), (LogTail{{std::string("a\0b", 3)}, 1, 4}))
        << "A null character is text.";
}

TEST_F(LogTailTest, readsManyAndLongLines)
{
    std::string many;
    for (int number = 1; number <= 200'000; ++number)
        many += std::to_string(number) + " — é\n";
    EXPECT_EQ(
        tail(many), (LogTail{{"199998 — é", "199999 — é", "200000 — é"}, 200'000, many.size()}));

    const std::string longLine = std::string(3'000'000, 'x') + "é";
    EXPECT_EQ(tail("one\n" + longLine + "\ntwo\n"),
        (LogTail{{"one", longLine, "two"}, 3, longLine.size() + 9}));
    EXPECT_EQ(tail(longLine), (LogTail{{}, 0, 0}));
}

TEST_F(LogTailTest, cannotBeReadFromWhatIsNoFile)
{
    const auto missing = readLogTail(file, 0, 3);
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().reason, "No such file or directory");

    EXPECT_EQ(readLogTail(folder.path(), 0, 3).error().reason, "Is not a regular file");

    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(readLogTail(file, 0, 3).error().reason, "Is not a regular file") << "Not waited for";
}

} // namespace
} // namespace brindlex
