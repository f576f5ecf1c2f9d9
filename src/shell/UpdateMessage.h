#pragma once

#include "catalogue/StringCatalogue.h"
#include "platform/ProgramBundle.h"
#include "shell/UpdateCheckResult.h"

#include <string>

namespace brindlex {

/// What the user reads of a check for updates, in the language of the texts.
///
/// What comes from the server is plain text: no version and no reason is longer than one can read
/// at a glance, and the address is a secure one.
struct UpdateMessage {
    /// One line.
    std::string title{};
    /// A sentence or two.
    std::string detail{};
    /// What is new, in any number of lines; empty where nothing is said of it.
    std::string notes{};
    /// The page to get a newer version from; empty where there is none to get.
    std::string address{};

    bool operator==(const UpdateMessage&) const = default;
};

UpdateMessage updateMessage(const UpdateCheckResult::Any& result, const ProgramBundle& program,
    const StringCatalogue& strings);

} // namespace brindlex
