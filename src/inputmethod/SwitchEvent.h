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
    /// The selected input source changed, by a person or by this program.
    struct InputSourceChanged {
        bool operator==(const InputSourceChanged&) const = default;
    };
    /// The place that was reached brought an input source of its own, which nobody chose.
    struct PlaceChangedInputSource {
        bool operator==(const PlaceChangedInputSource&) const = default;
    };
    /// The desktop did not let the last selection stand.
    struct SelectionUndone {
        bool operator==(const SelectionUndone&) const = default;
    };
    /// Other input sources can be selected now.
    struct EnabledSourcesChanged {
        bool operator==(const EnabledSourcesChanged&) const = default;
    };

    using Any = Cases<AppActivated, BrowserContextTick, Start, Stop, ConfigEnabledChanged,
        DomainRulesEnabledChanged, InputSourceChanged, PlaceChangedInputSource, SelectionUndone,
        EnabledSourcesChanged>;
};

} // namespace brindlex
