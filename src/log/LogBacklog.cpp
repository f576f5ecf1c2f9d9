#include "log/LogBacklog.h"

#include <utility>

namespace brindlex {
namespace {

constexpr std::size_t chunkSize = 256 * 1024;
constexpr std::size_t mostSpares = 8;

/// About what a line has beside its message.
constexpr std::size_t lineHeadSize = 128;

} // namespace

void LogChunk::append(Date now, const LogCall& call)
{
    lines.push_back({call.subsystem, call.level, appendLogLine(text, now, call)});
}

std::string_view LogChunk::wholeLine(const Line& line) const
{
    const auto& parts = line.parts;
    return std::string_view(text).substr(parts.begin, parts.messageEnd + 1 - parts.begin);
}

std::string_view LogChunk::category(const Line& line) const
{
    const auto& parts = line.parts;
    return std::string_view(text).substr(
        parts.categoryBegin, parts.categoryEnd - parts.categoryBegin);
}

std::string_view LogChunk::message(const Line& line) const
{
    const auto& parts = line.parts;
    return std::string_view(text).substr(parts.messageBegin, parts.messageEnd - parts.messageBegin);
}

void LogBacklog::append(Date now, const LogCall& call)
{
    if (size_ > 0 && size_ + call.message.size() > limit_) {
        ++dropped_;
        return;
    }
    auto& chunk = chunkWithRoomFor(call.message.size() + lineHeadSize);
    const auto sizeBefore = chunk.text.size();
    chunk.append(now, call);
    size_ += chunk.text.size() - sizeBefore;
}

std::vector<LogChunk> LogBacklog::take(Date now)
{
    size_ = 0;
    if (const auto dropped = std::exchange(dropped_, 0); dropped > 0)
        append(now,
            {LogLevel::warn, Log::Subsystem::app, logCategory::lifecycle,
                "Log lines dropped, as they came faster than they could be written: "
                    + std::to_string(dropped),
                CallSite::here()});
    size_ = 0;
    return std::exchange(chunks_, {});
}

void LogBacklog::giveBack(std::vector<LogChunk>& chunks)
{
    for (auto& chunk : chunks) {
        if (spares_.size() == mostSpares)
            return;
        if (chunk.text.capacity() > 2 * chunkSize)
            continue;
        chunk.text.clear();
        chunk.lines.clear();
        spares_.push_back(std::move(chunk));
    }
}

LogChunk& LogBacklog::chunkWithRoomFor(std::size_t bytes)
{
    if (!chunks_.empty() && chunks_.back().text.size() + bytes <= chunkSize)
        return chunks_.back();
    if (spares_.empty()) {
        spares_.emplace_back();
        spares_.back().text.reserve(chunkSize);
    }
    chunks_.push_back(std::move(spares_.back()));
    spares_.pop_back();
    return chunks_.back();
}

} // namespace brindlex
