#include "platform/linux/applications/X11RunningApplications.h"

#include "foundation/Text.h"
#include "platform/linux/applications/ApplicationIdentity.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

constexpr std::size_t identifiedLimit = 512;

/// The base name of the file that a process runs; empty when it may not be known.
std::string programOfProcess(std::int64_t process)
{
    std::error_code unknown;
    auto file = std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", unknown)
                    .filename()
                    .string();
    constexpr std::string_view replaced = " (deleted)";
    if (file.ends_with(replaced))
        file.resize(file.size() - replaced.size());
    return wellFormed(file);
}

bool isSameApplication(const RunningApplication& one, const RunningApplication& other)
{
    return one.processIdentifier == other.processIdentifier
        && one.bundleIdentifier == other.bundleIdentifier;
}

} // namespace

X11RunningApplications::X11RunningApplications(
    X11Connection& connection, X11ActiveWindow& activeWindow, DesktopEntries& entries)
    : connection_(connection), activeWindow_(activeWindow), entries_(entries)
{
    windowChanges_ = activeWindow_.observe([this] { readFrontmost(); });
    // Some applications name themselves only after their window has become active.
    propertyChanges_ = connection_.observeEvents([this](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            return;
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == activeWindow_.window() && change.atom == XCB_ATOM_WM_CLASS)
            readFrontmost();
    });
    readFrontmost();
}

std::vector<RunningApplication> X11RunningApplications::running() const
{
    std::vector<RunningApplication> applications;
    for (const auto& description : describe(connection_, managedWindows(connection_))) {
        if (!description || description->processIdentifier == ::getpid())
            continue;
        auto application = applicationOf(*description);
        const bool isListed = std::any_of(
            applications.begin(), applications.end(), [&](const RunningApplication& listed) {
                return application.processIdentifier != ProcessIdentity::none
                    ? listed.processIdentifier == application.processIdentifier
                    : isSameApplication(listed, application);
            });
        if (!isListed)
            applications.push_back(std::move(application));
    }
    return applications;
}

Subscription X11RunningApplications::observeActivation(ActivationHandler handler)
{
    return observers_.add(std::move(handler));
}

RunningApplication X11RunningApplications::applicationOf(
    const X11WindowDescription& description) const
{
    const auto known = identified_.find(description);
    if (known != identified_.end())
        return known->second;
    auto application = identify(description);
    if (identified_.size() >= identifiedLimit)
        identified_.clear();
    identified_.emplace(description, application);
    return application;
}

RunningApplication X11RunningApplications::identify(const X11WindowDescription& description) const
{
    const WindowOrigin origin{description.instance, description.className,
        description.processIdentifier == 0 ? std::string()
                                           : programOfProcess(description.processIdentifier)};
    const auto* entry = entryOf(origin, entries_.all());
    if (!entry && entries_.refresh()) {
        identified_.clear();
        entry = entryOf(origin, entries_.all());
    }

    RunningApplication application{
        .processIdentifier = ProcessIdentity{description.processIdentifier}};
    if (entry) {
        application.bundleIdentifier = identifierOf(*entry);
        application.bundlePath = entry->path;
        application.localizedName
            = unlessEmpty(entry->localizedName.empty() ? entry->identifier : entry->localizedName);
    } else {
        application.bundleIdentifier = identifierWithoutEntry(origin).value_or("unnamed:" + session_
            + ":" + std::to_string(description.nameless) + ":"
            + std::to_string(description.processIdentifier));
        application.localizedName
            = unlessEmpty(origin.className.empty() ? origin.program : origin.className);
    }
    return application;
}

void X11RunningApplications::readFrontmost()
{
    const auto window = activeWindow_.window();
    if (window == 0) {
        frontmost_.reset();
        return;
    }
    const auto description = describe(connection_, {window}).front();
    // The window manager is about to name the next window.
    if (!description)
        return;
    if (description->processIdentifier == ::getpid()) {
        frontmost_.reset();
        lastNotified_.reset();
        return;
    }
    frontmost_ = applicationOf(*description);
    const bool isNotified = lastNotified_ && isSameApplication(*lastNotified_, *frontmost_);
    lastNotified_ = frontmost_;
    if (!isNotified)
        observers_.notify(frontmost_);
}

} // namespace brindlex
