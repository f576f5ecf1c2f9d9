#pragma once

#include "foundation/Cases.h"

#include <optional>
#include <string>

namespace brindlex {

/// What happens to the switching of input sources.
struct SwitchEvent {
    /// An application came to the front.
    struct AppActivated {
        std::optional<std::string> bundleID{};
        bool operator==(const AppActivated&) const = default;
    };
    /// It is time to look at the browser's page again; the host is absent while it is not known.
    struct BrowserContextTick {
        std::optional<std::string> host{};
        bool operator==(const BrowserContextTick&) const = default;
    };
    struct Start {
        bool operator==(const Start&) const = default;
    };
    struct Stop {
        bool operator==(const Stop&) const = default;
    };
    struct ConfigEnabledChanged {
        bool operator==(const ConfigEnabledChanged&) const = default;
    };
    struct DomainRulesEnabledChanged {
        bool operator==(const DomainRulesEnabledChanged&) const = default;
    };
    /// The selected input source changed, whoever changed it.
    struct InputSourceChanged {
        bool operator==(const InputSourceChanged&) const = default;
    };

    using Any = Cases<AppActivated, BrowserContextTick, Start, Stop, ConfigEnabledChanged,
        DomainRulesEnabledChanged, InputSourceChanged>;
};

} // namespace brindlex
