#pragma once

#include "foundation/Subscription.h"
#include "platform/Identities.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What the system reports of an application that runs.
struct RunningApplication {
    ProcessIdentity processIdentifier{};
    std::optional<std::string> bundleIdentifier{};
    /// The application's bundle, or what stands for it: its desktop entry on Linux.
    std::optional<std::filesystem::path> bundlePath{};
    std::optional<std::string> localizedName{};

    bool operator==(const RunningApplication&) const = default;
};

/// The applications that run and the one that the user works in. Main thread only.
class RunningApplications {
public:
    using ActivationHandler
        = std::function<void(const std::optional<RunningApplication>& application)>;

    virtual ~RunningApplications() = default;

    /// The application of the active window; nothing when no window is active.
    virtual std::optional<RunningApplication> frontmost() const = 0;

    /// All with a window, each process once, in the order in which their windows appeared.
    virtual std::vector<RunningApplication> running() const = 0;

    /// Notifies the observer each time another application comes to the front, once `frontmost`
    /// returns it; not when the front merely becomes empty, or moves between windows of one
    /// application.
    virtual Subscription observeActivation(ActivationHandler handler) = 0;
};

} // namespace brindlex
