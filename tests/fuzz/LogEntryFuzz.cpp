#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "log/LogLine.h"
#include "logviewer/LogEntry.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const auto entry = parseLogLine(text, "id");
    require(entry.raw == text || entry.raw + "\n" == text, "an entry keeps its line");
    if (entry.timestampString.empty() && entry.location.empty())
        require(entry.message == entry.raw, "a raw entry is its line");
    else
        require(entry.raw.ends_with(entry.message), "a message ends its line");

    // What the writer writes is read back, as long as it is one line.
    if (text.find('\n') != std::string::npos || !isWellFormed(text))
        return 0;
    std::string line;
    appendLogLine(line, Date{700'000'000.25},
        {LogLevel::warn, Log::Subsystem::app, "ui", text, {"Some.cpp", 7}});
    const auto read = parseLogLine(line, "id");
    require(read.message == text, "a message is read as written");
    require(read.level == LogLevel::warn && read.category == "ui", "and so is the rest");
    require(read.timestamp == Date{700'000'000.25}, "with its time");
    return 0;
}
