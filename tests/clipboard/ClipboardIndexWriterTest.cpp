#include "clipboard/ClipboardIndexWriter.h"

#include "clipboard/ClipboardIndex.h"
#include "platform/posix/SerialQueue.h"
#include "platform/simulated/SimulatedQueue.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"
#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Texts = std::vector<std::string>;

struct ClipboardIndexWriterTest : testing::Test {
    Texts saved() const
    {
        const auto items = readClipboardIndex(file);
        return items && *items ? textsOf(**items) : Texts{"none"};
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "index.json";
    RecordedLog log;
};

TEST_F(ClipboardIndexWriterTest, writesOnTheQueue)
{
    SimulatedQueue queue;
    ClipboardIndexWriter(queue, file).write({shared(textItem("one"))});
    EXPECT_EQ(saved(), Texts{"none"});
    queue.drain();
    EXPECT_EQ(saved(), Texts{"one"});
}

TEST_F(ClipboardIndexWriterTest, writesOnlyTheNewestOfWhatWaits)
{
    SimulatedQueue queue;
    ClipboardIndexWriter writer(queue, file);
    writer.write({shared(textItem("one"))});
    writer.write({shared(textItem("two"))});
    queue.runNext();
    EXPECT_EQ(saved(), Texts{"two"});
    std::filesystem::remove(file);
    queue.drain();
    EXPECT_EQ(saved(), Texts{"none"});
}

TEST_F(ClipboardIndexWriterTest, endsWithTheNewestFromAThreadOfItsOwn)
{
    {
        SerialQueue queue("test");
        ClipboardIndexWriter writer(queue, file);
        for (int number = 0; number <= 300; ++number)
            writer.write({shared(textItem(std::to_string(number)))});
    }
    EXPECT_EQ(saved(), Texts{"300"});
    EXPECT_EQ(log.lines(), Texts{});
}

TEST_F(ClipboardIndexWriterTest, logsAFailure)
{
    SimulatedQueue queue(SimulatedQueue::Mode::atOnce);
    std::filesystem::create_directory(file);
    ClipboardIndexWriter(queue, file).write({});
    EXPECT_EQ(log.lines(),
        Texts{"WARN [clipboard] ClipboardHistoryStore: save failed: " + file.string()
            + ": Is not a regular file"});
}

} // namespace
} // namespace brindlex
