#pragma once

#include "foundation/Cases.h"

#include <string>

namespace brindlex {

/// What is to be done after an event, in the order of the list.
struct SwitchEffect {
    /// Show the overlay.
    struct FireHUD {
        std::string label{};
        bool operator==(const FireHUD&) const = default;
    };
    /// Write a warning in the log; `target` is its category.
    struct LogWarning {
        std::string message{};
        std::string target{};
        bool operator==(const LogWarning&) const = default;
    };
    /// Take the overlay back: what it says does not hold.
    struct WithdrawHUD {
        bool operator==(const WithdrawHUD&) const = default;
    };
    struct InstallObservers {
        bool operator==(const InstallObservers&) const = default;
    };
    struct RemoveObservers {
        bool operator==(const RemoveObservers&) const = default;
    };
    struct StartBrowserPolling {
        bool operator==(const StartBrowserPolling&) const = default;
    };
    struct StopBrowserPolling {
        bool operator==(const StopBrowserPolling&) const = default;
    };

    using Any = Cases<FireHUD, LogWarning, InstallObservers, RemoveObservers, StartBrowserPolling,
        StopBrowserPolling, WithdrawHUD>;
};

} // namespace brindlex
