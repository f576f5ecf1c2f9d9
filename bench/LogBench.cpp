/// What a log call costs its caller, and how fast lines reach the file.
///
/// Everything is real but the system log, which takes its messages and does nothing. A call
/// includes the making of its message. Run it from a release build: `bench_log [folder]`.

#include "log/LogWriter.h"
#include "platform/SystemLog.h"
#include "platform/posix/PosixAppGroupContainer.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/SerialQueue.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace brindlex {
namespace {

using Stopwatch = std::chrono::steady_clock;
using Nanoseconds = std::vector<double>;

constexpr int repetitions = 7;

class NoSystemLog : public SystemLog {
public:
    void write(SystemLogType, const std::string&, const std::string&, const std::string&) override
    {
    }
};

double nanosecondsSince(Stopwatch::time_point begin)
{
    return std::chrono::duration<double, std::nano>(Stopwatch::now() - begin).count();
}

double quantile(Nanoseconds& values, double part)
{
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

void logOnce(int number)
{
    Log::info("event tap: gesture " + std::to_string(number) + " recognised in "
            + std::to_string(number * 7 % 1000) + " us for firefox",
        logCategory::mouse);
}

/// Each call by itself.
Nanoseconds timedCalls(int count, std::chrono::microseconds apart)
{
    Nanoseconds costs;
    costs.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number) {
        if (apart.count() > 0)
            std::this_thread::sleep_for(apart);
        const auto begin = Stopwatch::now();
        logOnce(number);
        costs.push_back(nanosecondsSince(begin));
    }
    return costs;
}

void report(const char* operation, Nanoseconds costs)
{
    std::printf("%-44s %9.0f %9.0f %9.0f  ns\n", operation, quantile(costs, 0.5),
        quantile(costs, 0.99), quantile(costs, 1));
}

/// A logging program in a folder of its own.
class Program {
public:
    explicit Program(const std::filesystem::path& folder)
        : container_(folder / "container"), before_(Log::install(writer_))
    {
    }
    ~Program()
    {
        writer_->drain();
        Log::install(before_);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void drain() { writer_->drain(); }

    std::uintmax_t linesOnDisk()
    {
        std::uintmax_t lines = 0;
        const auto folder = writer_->fileURL(Log::Subsystem::app)->parent_path();
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            auto* const file = std::fopen(entry.path().c_str(), "rb");
            for (int byte = std::getc(file); byte != EOF; byte = std::getc(file))
                lines += byte == '\n';
            std::fclose(file);
        }
        return lines;
    }

    void removeFiles()
    {
        std::filesystem::remove_all(writer_->fileURL(Log::Subsystem::app)->parent_path());
    }

private:
    PosixAppGroupContainer container_;
    NoSystemLog systemLog_;
    PosixClock clock_;
    SerialQueue queue_{"Brindlex.Log.file", std::chrono::milliseconds(10)};
    std::shared_ptr<LogWriter> writer_
        = std::make_shared<LogWriter>(queue_, container_, systemLog_, clock_);
    std::shared_ptr<LogSink> before_;
};

void benchThroughput(Program& program, int lines)
{
    Nanoseconds rates;
    Nanoseconds callerCosts;
    std::uintmax_t onDisk = 0;
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        program.removeFiles();
        const auto begin = Stopwatch::now();
        for (int number = 0; number < lines; ++number)
            logOnce(number);
        callerCosts.push_back(nanosecondsSince(begin) / lines);
        program.drain();
        rates.push_back(lines / nanosecondsSince(begin) * 1e9);
        onDisk = program.linesOnDisk();
    }
    std::printf("%-44s %9.0f %9.0f %9.0f  lines/s (median, least, most)\n",
        "lines to the file, until they are there", quantile(rates, 0.5), quantile(rates, 0),
        quantile(rates, 1));
    std::printf("    %d lines logged, %ju lines on disk\n", lines, onDisk);
    report("caller's time per line, saturated", callerCosts);
}

void benchBurst(Program& program)
{
    Nanoseconds costs;
    for (int repetition = 0; repetition < 50; ++repetition) {
        program.drain();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const auto begin = Stopwatch::now();
        for (int number = 0; number < 1'000; ++number)
            logOnce(number);
        costs.push_back(nanosecondsSince(begin) / 1'000);
    }
    report("caller's time per line, burst of 1000", costs);
}

int run(const std::filesystem::path& folder)
{
    Program program(folder);
    std::printf("%-44s %9s %9s %9s\n", "", "median", "p99", "most");
    benchThroughput(program, 500'000);
    benchBurst(program);
    report("one call after another", timedCalls(200'000, {}));
    report("one call each ms", timedCalls(2'000, std::chrono::milliseconds(1)));
    report("one call each 50 ms", timedCalls(100, std::chrono::milliseconds(50)));
    return EXIT_SUCCESS;
}

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    auto pattern
        = (std::filesystem::path(count > 1 ? arguments[1] : ".") / "bench.XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        std::perror(pattern.c_str());
        return EXIT_FAILURE;
    }
    const int status = brindlex::run(pattern);
    std::filesystem::remove_all(pattern);
    return status;
}
