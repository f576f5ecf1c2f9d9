#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The log viewer.
inline constexpr auto logsTexts = std::to_array<CatalogueRow>({
    {"logs.alert.clear.message", "This truncates the current log file immediately."},
    {"logs.alert.clear.titleFormat", "Clear %@ log?"},
    {"logs.clear", "Clear"},
    {"logs.clearCurrent.help", "Clear current log"},
    {"logs.clearFailedFormat", "Failed to clear log: %@"},
    {"logs.clearSearch.help", "Clear search"},
    {"logs.copyMessage", "Copy Message"},
    {"logs.copyRawEntry", "Copy Raw Entry"},
    {"logs.entriesCountFormat", "%lld / %lld entries"},
    {"logs.error.appGroupUnavailable", "App Group container unavailable"},
    {"logs.filter.all", "All"},
    {"logs.filter.allLevels", "All Levels"},
    {"logs.filter.none", "None"},
    {"logs.filter.warningsAndErrors", "Warnings and Errors"},
    {"logs.follow", "Follow"},
    {"logs.follow.help", "Automatically scroll to the newest entry"},
    {"logs.noLogs.subtitle", "New entries appear here while Brindlex runs."},
    {"logs.noLogs.title", "No Logs Yet"},
    {"logs.noMatches.subtitle", "Adjust the level filter or search text."},
    {"logs.noMatches.title", "No Matches"},
    {"logs.readFailedFormat", "Failed to read log: %@"},
    {"logs.reload.help", "Reload log"},
    {"logs.revealInFinder.help", "Reveal log file in Finder"},
    {"logs.search.placeholder", "Search message, category, location"},
    {"logs.state.cannotRead", "Cannot Read Logs"},
    {"logs.subsystem.app", "App"},
    {"logs.subsystem.finder", "Finder"},
    {"logs.windowTitle", "Brindlex Logs"},
});

} // namespace brindlex
