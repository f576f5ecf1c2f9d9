#include "shell/SoftwareUpdateManager.h"

#include "log/Log.h"

namespace brindlex {
namespace {

constexpr HttpReading::Limits feedLimits{.bytes = 64 * 1024, .time = 10};

void logFailure(const UpdateCheckResult::Any& result)
{
    if (const auto* failed = std::get_if<UpdateCheckResult::Failed>(&result))
        Log::warn("Update check failed: " + failed->detail, logCategory::lifecycle);
}

} // namespace

SoftwareUpdateManager::SoftwareUpdateManager(HttpReading& network, const ProgramBundle& program)
    : network_(network), program_(program), canCheckForUpdates_(!program.updateFeedURL.empty())
{
}

void SoftwareUpdateManager::checkForUpdates()
{
    if (!canCheckForUpdates_.value())
        return;
    canCheckForUpdates_.set(false);
    reading_ = network_.read(program_.updateFeedURL, feedLimits,
        [this](const Result<std::string, HttpProblem>& reply) { finish(reply); });
}

void SoftwareUpdateManager::finish(const Result<std::string, HttpProblem>& reply)
{
    const auto result = updateCheckResult(reply, program_.shortVersion);
    logFailure(result);
    canCheckForUpdates_.set(true);
    if (onResult)
        onResult(result);
}

} // namespace brindlex
