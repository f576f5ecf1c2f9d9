#include "logviewer/LogScreen.h"

#include "log/Log.h"

#include <algorithm>
#include <utility>

namespace brindlex {

LogScreen::LogScreen(MainThread& mainThread, const StringCatalogue& strings)
    : strings_(strings), appReader_(Log::Subsystem::app, mainThread, strings),
      finderReader_(Log::Subsystem::finder, mainThread, strings)
{
    for (auto* reader : {&appReader_, &finderReader_}) {
        const auto updateIfShown = [this, reader](const auto&) {
            if (reader == &this->reader())
                update();
        };
        changes_.push_back(reader->entries().stream().withoutFirst().subscribe(updateIfShown));
        changes_.push_back(reader->loadError().stream().withoutFirst().subscribe(updateIfShown));
    }
}

void LogScreen::appear()
{
    appReader_.start();
    finderReader_.start();
}

void LogScreen::disappear()
{
    appReader_.stop();
    finderReader_.stop();
}

void LogScreen::setSubsystem(LogDisplaySubsystem subsystem)
{
    subsystem_ = subsystem;
    update();
}

void LogScreen::setSelectedLevels(std::set<LogLevel> levels)
{
    filter_.levels = std::move(levels);
    update();
}

void LogScreen::setQuery(std::string query)
{
    filter_.query = std::move(query);
    update();
}

const std::vector<LogEntry>& LogScreen::entries() const { return reader().entries().value(); }

const LogEntry* LogScreen::selectedEntry() const
{
    const auto& visible = visible_.value();
    const auto found = std::find_if(visible.begin(), visible.end(),
        [&](std::size_t index) { return entries()[index].id == selectedEntryID_; });
    return found == visible.end() ? nullptr : &entries()[*found];
}

LogScreen::Content LogScreen::content() const
{
    if (reader().loadError().value())
        return Content::cannotRead;
    if (entries().empty())
        return Content::noLogs;
    return visible_.value().empty() ? Content::noMatches : Content::entries;
}

std::string LogScreen::loadError() const { return reader().loadError().value().value_or(""); }

std::string LogScreen::countLine() const
{
    return strings_.text<"logs.entriesCountFormat">(visible_.value().size(), entries().size());
}

std::string LogScreen::clearQuestion() const
{
    const auto name = subsystem_ == LogDisplaySubsystem::app
        ? strings_.text<"logs.subsystem.app">()
        : strings_.text<"logs.subsystem.finder">();
    return strings_.text<"logs.alert.clear.titleFormat">(name);
}

void LogScreen::confirmClear()
{
    showClearConfirm_ = false;
    reader().clear();
}

std::optional<std::filesystem::path> LogScreen::file() const
{
    return Log::fileURL(reader().subsystem());
}

LogReader& LogScreen::reader()
{
    return subsystem_ == LogDisplaySubsystem::app ? appReader_ : finderReader_;
}

const LogReader& LogScreen::reader() const
{
    return subsystem_ == LogDisplaySubsystem::app ? appReader_ : finderReader_;
}

void LogScreen::update() { visible_.set(visibleEntries(entries(), filter_)); }

} // namespace brindlex
