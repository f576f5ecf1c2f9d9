// How long the log viewer takes with a log as large as it gets.

#include "log/LogLine.h"
#include "logviewer/LogFilter.h"
#include "logviewer/LogReader.h"
#include "logviewer/LogTail.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace brindlex {
namespace {

constexpr std::size_t fullLog = 52'428'800;

/// A file in the temporary folder that goes away with it.
class LogOnDisk {
public:
    explicit LogOnDisk(std::size_t size)
    {
        std::ofstream file(path_, std::ios::binary);
        std::size_t written = 0;
        for (int number = 0; written < size; ++number) {
            std::string line;
            const auto message = "Selected xkb:de::deu for org.example.Application number "
                + std::to_string(number) + " by the rule of the application";
            appendLogLine(line, Date{700'000'000.0 + number},
                {LogLevel::info, Log::Subsystem::app, "input-method", message, CallSite::here()});
            file << line;
            written += line.size();
        }
    }
    ~LogOnDisk() { std::filesystem::remove(path_); }
    LogOnDisk(const LogOnDisk&) = delete;
    LogOnDisk& operator=(const LogOnDisk&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / "bench_log_viewer.log";
};

std::vector<LogEntry> entriesOf(const LogTail& tail)
{
    std::vector<LogEntry> entries;
    for (const auto& line : tail.lines)
        entries.push_back(parseLogLine(line, "id"));
    return entries;
}

void openAFullLog(benchmark::State& state)
{
    const LogOnDisk log(fullLog);
    for (auto _ : state)
        benchmark::DoNotOptimize(entriesOf(*readLogTail(log.path(), 0, logEntryLimit)));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(fullLog));
}
BENCHMARK(openAFullLog)->Unit(benchmark::kMillisecond);

void searchAllEntries(benchmark::State& state)
{
    const LogOnDisk log(fullLog / 10);
    const auto entries = entriesOf(*readLogTail(log.path(), 0, logEntryLimit));
    for (auto _ : state)
        benchmark::DoNotOptimize(visibleEntries(entries, {.query = "Nothing has this"}));
}
BENCHMARK(searchAllEntries)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brindlex

BENCHMARK_MAIN();
