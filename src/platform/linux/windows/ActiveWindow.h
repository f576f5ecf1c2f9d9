#pragma once

#include "platform/Identities.h"

#include <string>

namespace brindlex {

/// The window that the user works in.
struct ActiveWindow {
    WindowIdentity window{};
    ProcessIdentity processIdentifier{};
    std::string title{};

    bool operator==(const ActiveWindow&) const = default;
};

} // namespace brindlex
