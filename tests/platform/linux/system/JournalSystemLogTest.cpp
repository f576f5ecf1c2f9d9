#include "platform/linux/system/JournalSystemLog.h"

#include "support/basics/DatagramSocket.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <regex>
#include <unistd.h>

namespace brindlex {
namespace {

using Fields = std::map<std::string, std::string>;

class JournalSystemLogTest : public testing::Test {
protected:
    void write(const std::string& message, SystemLogType type = SystemLogType::info)
    {
        log.write(type, "com.brindlex.Brindlex.app", "input-method", message);
    }

    TemporaryFolder folder;
    std::filesystem::path journalPath = folder.path() / "journal";
    std::filesystem::path syslogPath = folder.path() / "syslog";
    JournalSystemLog log{journalPath, syslogPath};
};

TEST_F(JournalSystemLogTest, givesTheJournalItsFields)
{
    const DatagramSocket journal(journalPath);
    write("message");

    EXPECT_EQ(journalFields(journal.receive().value()),
        (Fields{{"MESSAGE", "message"}, {"PRIORITY", "6"}, {"SYSLOG_IDENTIFIER", "brindlex"},
            {"BRINDLEX_SUBSYSTEM", "com.brindlex.Brindlex.app"},
            {"BRINDLEX_CATEGORY", "input-method"}}));
}

TEST_F(JournalSystemLogTest, mapsTheTypesToPriorities)
{
    const DatagramSocket journal(journalPath);
    const auto priorityOf = [&](SystemLogType type) {
        write("m", type);
        return journalFields(journal.receive().value()).at("PRIORITY");
    };
    EXPECT_EQ(priorityOf(SystemLogType::info), "6");
    EXPECT_EQ(priorityOf(SystemLogType::standard), "5");
    EXPECT_EQ(priorityOf(SystemLogType::error), "3");
}

TEST_F(JournalSystemLogTest, writesFieldsInTheJournalsOwnForm)
{
    const DatagramSocket journal(journalPath);
    write("two\nlines");

    EXPECT_EQ(journal.receive(),
        std::string("MESSAGE\n\x09\0\0\0\0\0\0\0two\nlines\nPRIORITY=6\n", 37)
            + "SYSLOG_IDENTIFIER=brindlex\nBRINDLEX_SUBSYSTEM=com.brindlex.Brindlex.app\n"
              "BRINDLEX_CATEGORY=input-method\n");
}

TEST_F(JournalSystemLogTest, writesToTheSyslogWhereThereIsNoJournal)
{
    const DatagramSocket syslog(syslogPath);
    write("message", SystemLogType::error);

    const std::regex form("<11>[A-Z][a-z]{2} [ 0-9][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2} "
                          "brindlex\\[([0-9]+)\\]: com\\.brindlex\\.Brindlex\\.app "
                          "\\[input-method\\] message");
    const auto datagram = syslog.receive().value();
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(datagram, parts, form)) << datagram;
    EXPECT_EQ(parts[1], std::to_string(::getpid()));
}

TEST_F(JournalSystemLogTest, writesOnlyToTheJournalWhereThereAreBoth)
{
    const DatagramSocket journal(journalPath);
    const DatagramSocket syslog(syslogPath);
    write("message");

    EXPECT_TRUE(journal.receive());
    EXPECT_FALSE(syslog.receive());
}

TEST_F(JournalSystemLogTest, dropsMessagesWhereThereIsNeither)
{
    write("dropped");
    const DatagramSocket journal(journalPath);
    EXPECT_FALSE(journal.receive());

    JournalSystemLog impossible(std::string(1'000, 'p'), "");
    impossible.write(SystemLogType::info, "s", "c", "dropped");
}

TEST_F(JournalSystemLogTest, survivesARestartOfTheJournal)
{
    {
        const DatagramSocket journal(journalPath);
        write("one");
        EXPECT_TRUE(journal.receive());
    }
    write("nobody is there");
    std::filesystem::remove(journalPath);
    const DatagramSocket journal(journalPath);
    write("two");

    EXPECT_EQ(journalFields(journal.receive().value()).at("MESSAGE"), "two");
    EXPECT_FALSE(journal.receive());
}

TEST_F(JournalSystemLogTest, waitsNotLongForADaemonThatTakesNothing)
{
    const DatagramSocket journal(journalPath);
    const auto begin = std::chrono::steady_clock::now();
    for (int count = 0; count < 5'000; ++count)
        write(std::string(1'000, 'x'));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));

    int received = 0;
    while (journal.receive())
        ++received;
    EXPECT_GT(received, 0);
    EXPECT_LT(received, 5'000);
    write("afterwards");
    EXPECT_EQ(journalFields(journal.receive().value()).at("MESSAGE"), "afterwards");
}

TEST_F(JournalSystemLogTest, cutsVeryLongMessagesBetweenCharacters)
{
    const DatagramSocket journal(journalPath);
    write(std::string(32'768, 'x'));
    EXPECT_EQ(journalFields(journal.receive().value()).at("MESSAGE").size(), 32'768u);
    write(std::string(32'767, 'x') + "é");
    EXPECT_EQ(journalFields(journal.receive().value()).at("MESSAGE"), std::string(32'767, 'x'));
    write(std::string(50'000'000, '\x80'));
    EXPECT_EQ(journalFields(journal.receive().value()).at("MESSAGE").size(), 32'765u);
}

} // namespace
} // namespace brindlex
