#include "applications/ApplicationRecency.h"

namespace brindlex {
namespace {

/// More than anybody looks through before searching.
constexpr std::size_t mostRemembered = 20;

} // namespace

ApplicationRecency::ApplicationRecency(RunningApplications& applications)
    : applications_(applications),
      activations_(applications.observeActivation(
          [this](const std::optional<RunningApplication>& application) { note(application); }))
{
    note(applications.frontmost());
}

ApplicationUse ApplicationRecency::use() const
{
    ApplicationUse use{.recent = recent_, .running = {}};
    for (const auto& application : applications_.running())
        if (application.bundleIdentifier)
            use.running.insert(*application.bundleIdentifier);
    return use;
}

void ApplicationRecency::note(const std::optional<RunningApplication>& application)
{
    if (!application || !application->bundleIdentifier)
        return;
    std::erase(recent_, *application->bundleIdentifier);
    recent_.insert(recent_.begin(), *application->bundleIdentifier);
    if (recent_.size() > mostRemembered)
        recent_.pop_back();
}

} // namespace brindlex
