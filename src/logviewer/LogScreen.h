#pragma once

#include "catalogue/StringCatalogue.h"
#include "logviewer/LogFilter.h"
#include "logviewer/LogReader.h"
#include "platform/MainThread.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Whose log is shown.
enum class LogDisplaySubsystem { app, finder };

/// What the window of the logs shows, without the window: one of two logs, filtered, and which of
/// its entries is selected. The logs are followed while the screen is shown only. Main thread only.
class LogScreen {
public:
    /// What there is to see in place of entries.
    enum class Content { entries, noLogs, noMatches, cannotRead };

    LogScreen(MainThread& mainThread, const StringCatalogue& strings);

    /// Begins and ends following both logs.
    void appear();
    void disappear();

    LogDisplaySubsystem subsystem() const { return subsystem_; }
    void setSubsystem(LogDisplaySubsystem subsystem);
    const LogFilter& filter() const { return filter_; }
    void setSelectedLevels(std::set<LogLevel> levels);
    void setQuery(std::string query);
    /// Whether the newest entry is to be in sight after each change.
    bool autoScroll() const { return autoScroll_; }
    void setAutoScroll(bool isOn) { autoScroll_ = isOn; }
    void select(std::optional<std::string> entryID) { selectedEntryID_ = std::move(entryID); }

    /// The entries of the log that is shown, and which of them stand in the list.
    const std::vector<LogEntry>& entries() const;
    const Observable<std::vector<std::size_t>>& visible() const { return visible_; }
    /// Nothing while the selected entry is not among the visible ones.
    const LogEntry* selectedEntry() const;
    Content content() const;
    /// The words for what could not be read.
    std::string loadError() const;
    /// "3 / 5 entries".
    std::string countLine() const;
    /// Of the file that is shown, in bytes.
    std::uint64_t fileByteSize() const { return reader().fileByteSize().value(); }

    void reload() { reader().reload(); }
    /// The question that comes before a log is emptied, and the answers to it.
    void requestClear() { showClearConfirm_ = true; }
    bool showsClearConfirm() const { return showClearConfirm_; }
    std::string clearQuestion() const;
    void confirmClear();
    void cancelClear() { showClearConfirm_ = false; }

    /// The file that is shown, to be revealed in a file manager; nothing without a container.
    std::optional<std::filesystem::path> file() const;

private:
    LogReader& reader();
    const LogReader& reader() const;
    void update();

    const StringCatalogue& strings_;
    LogReader appReader_;
    LogReader finderReader_;
    LogDisplaySubsystem subsystem_ = LogDisplaySubsystem::app;
    LogFilter filter_;
    bool autoScroll_ = true;
    bool showClearConfirm_ = false;
    std::optional<std::string> selectedEntryID_;
    Observable<std::vector<std::size_t>> visible_{{}};
    std::vector<Subscription> changes_;
};

} // namespace brindlex
