#include "support/basics/RecordedLog.h"

#include <mutex>
#include <optional>
#include <utility>

namespace brindlex {

class RecordedLog::Recorder : public LogSink {
public:
    explicit Recorder(SimulatedJournal* journal) : journal_(journal) { }

    void write(const LogCall& call) override
    {
        std::string line(rawValue(call.level));
        line.append(" [").append(call.category).append("] ").append(call.message);
        journal_.add("log " + line);
        const std::lock_guard guard(mutex);
        lines.push_back(std::move(line));
    }

    void prune(Date now) override
    {
        journal_.add("prune");
        const std::lock_guard guard(mutex);
        prunes.push_back(now);
    }

    std::optional<std::filesystem::path> fileURL(Log::Subsystem subsystem) override
    {
        const std::lock_guard guard(mutex);
        if (!folder)
            return {};
        return *folder / (std::string(rawValue(subsystem)) + ".log");
    }

    std::mutex mutex;
    std::vector<std::string> lines;
    std::vector<Date> prunes;
    std::optional<std::filesystem::path> folder;

private:
    SimulatedJournal::Writer journal_;
};

RecordedLog::RecordedLog(SimulatedJournal* journal)
    : recorder_(std::make_shared<Recorder>(journal)), before_(Log::install(recorder_))
{
}

RecordedLog::~RecordedLog() { Log::install(before_); }

std::vector<std::string> RecordedLog::lines() const
{
    const std::lock_guard guard(recorder_->mutex);
    return recorder_->lines;
}

std::vector<std::string> RecordedLog::takeLines()
{
    const std::lock_guard guard(recorder_->mutex);
    return std::exchange(recorder_->lines, {});
}

std::vector<Date> RecordedLog::prunes() const
{
    const std::lock_guard guard(recorder_->mutex);
    return recorder_->prunes;
}

void RecordedLog::setFolder(const std::filesystem::path& folder)
{
    const std::lock_guard guard(recorder_->mutex);
    recorder_->folder = folder;
}

} // namespace brindlex
