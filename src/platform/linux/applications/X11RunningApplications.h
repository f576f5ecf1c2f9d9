#pragma once

#include "foundation/Subscribers.h"
#include "foundation/Uuid.h"
#include "platform/RunningApplications.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/windows/X11ActiveWindow.h"
#include "platform/linux/windows/X11WindowReading.h"

#include <map>
#include <optional>
#include <string>

namespace brindlex {

/// The applications with windows on the X server, as the window manager and the windows report.
///
/// Windows of this process count as none: while one of them is active there is no frontmost
/// application, and of the one that follows observers are notified, even if it is the one from
/// before. A process identifier of 0 means that the window names none of this machine. A window of
/// which nothing is known is an application of its own, whose identifier nobody has again.
class X11RunningApplications final : public RunningApplications {
public:
    X11RunningApplications(
        X11Connection& connection, X11ActiveWindow& activeWindow, DesktopEntries& entries);

    /// Costs no round trip.
    std::optional<RunningApplication> frontmost() const override { return frontmost_; }
    std::vector<RunningApplication> running() const override;
    Subscription observeActivation(ActivationHandler handler) override;

    /// The application of a window that says this of itself; costs no round trip.
    RunningApplication applicationOf(const X11WindowDescription& description) const;

private:
    RunningApplication identify(const X11WindowDescription& description) const;
    void readFrontmost();

    X11Connection& connection_;
    X11ActiveWindow& activeWindow_;
    DesktopEntries& entries_;
    std::optional<RunningApplication> frontmost_;
    std::optional<RunningApplication> lastNotified_;
    /// What the identifiers of applications without a name have that those of other times have not.
    std::string session_ = Uuid::random().text();
    mutable std::map<X11WindowDescription, RunningApplication> identified_;
    Subscribers<ActivationHandler> observers_;
    Subscription windowChanges_;
    Subscription propertyChanges_;
};

} // namespace brindlex
