#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The answer to a check for updates.
inline constexpr auto updatesTexts = std::to_array<CatalogueRow>({
    {"updates.close", "Close"},
    {"updates.current", "Brindlex is up to date"},
    {"updates.currentDetailFormat", "Version %@ is the newest one."},
    {"updates.failed", "Could not check for updates"},
    {"updates.installedDetailFormat", "You have version %@."},
    {"updates.newerDetailFormat", "You have version %@. The new one is from %@."},
    {"updates.newerFormat", "Version %@ is available"},
    {"updates.notes", "What is new"},
    {"updates.openPage", "Open Download Page"},
    {"updates.reason.insecure", "The server wants to go on over an unencrypted connection."},
    {"updates.reason.malformed", "The server sent something that Brindlex cannot read."},
    {"updates.reason.statusFormat", "The server answered with status %lld."},
    {"updates.reason.timedOut", "The server did not answer in time."},
    {"updates.reason.tooLarge", "The server sent more than Brindlex accepts."},
    {"updates.reason.unreachableFormat", "The server cannot be reached: %@"},
});

} // namespace brindlex
