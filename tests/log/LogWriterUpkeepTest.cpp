#include "log/LogWriterFixture.h"

#include <chrono>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

void makeOld(const fs::path& file)
{
    write(file, "old");
    fs::last_write_time(file,
        fs::file_time_type::clock::from_sys(
            std::chrono::sys_seconds(std::chrono::seconds(1'000'000'000))));
}

TEST_F(LogWriterTest, prunesBeforeALineAndAtMostOnceAnHour)
{
    fs::create_directory(logs);
    makeOld(logs / "a.log.3");
    makeOld(logs / "notes.txt");
    writer->write(call("one"));
    queue.drain();
    EXPECT_FALSE(fs::exists(logs / "a.log.3"));
    EXPECT_TRUE(fs::exists(logs / "notes.txt"));

    makeOld(logs / "b.log");
    clock.advance(3599.999);
    writer->write(call("two"));
    queue.drain();
    EXPECT_TRUE(fs::exists(logs / "b.log"));

    clock.setNow(launch + 3600.0);
    writer->write(call("three"));
    queue.drain();
    EXPECT_FALSE(fs::exists(logs / "b.log"));
}

TEST_F(LogWriterTest, beginsACurrentFileAfreshThatWasUntouchedForThirtyDays)
{
    fs::create_directory(logs);
    makeOld(logs / "com.brindlex.Brindlex.app.log");

    writer->write(call("one"));
    queue.drain();

    EXPECT_EQ(content(), line("one"));
}

TEST_F(LogWriterTest, prunesWhenToldAndThenNotForAnHourOfLines)
{
    fs::create_directory(logs);
    makeOld(logs / "a.log");
    writer->prune(launch);
    queue.drain();
    EXPECT_FALSE(fs::exists(logs / "a.log"));

    makeOld(logs / "b.log");
    writer->write(call("one"));
    queue.drain();
    EXPECT_TRUE(fs::exists(logs / "b.log"));
}

TEST_F(LogWriterTest, rotatesBeforeALineThatFindsTheFileAtItsLimit)
{
    fs::create_directory(logs);
    const auto file = logs / "com.brindlex.Brindlex.app.log";
    write(file, "");
    fs::resize_file(file, 52'428'799);
    writer->write(call("old"));
    writer->write(call("new"));
    queue.drain();

    EXPECT_EQ(content(), line("new"));
    EXPECT_EQ(
        fs::file_size(logs / "com.brindlex.Brindlex.app.log.1"), 52'428'799 + line("old").size());
}

} // namespace
} // namespace brindlex
