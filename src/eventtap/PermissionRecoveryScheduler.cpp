#include "eventtap/PermissionRecoveryScheduler.h"

#include <utility>

namespace brindlex {
namespace {

/// A retry ends with `schedule` or `cancel`, which drop the work that it runs in.
std::function<void()> surviving(std::function<void()> retry)
{
    return [retry = std::move(retry)] {
        const auto running = retry;
        running();
    };
}

} // namespace

PermissionRecoveryScheduler::PermissionRecoveryScheduler(
    MainThread& mainThread, ProgramActivation& activation)
    : mainThread_(mainThread), activation_(activation)
{
}

void PermissionRecoveryScheduler::schedule(std::function<void()> retry)
{
    retryTask_.reset();
    retryTask_ = mainThread_.after(retryDelay, surviving(retry));
    if (!didBecomeActiveObserver_.isActive())
        didBecomeActiveObserver_ = activation_.observeDidBecomeActive(surviving(std::move(retry)));
}

void PermissionRecoveryScheduler::cancel()
{
    retryTask_.reset();
    didBecomeActiveObserver_.reset();
}

} // namespace brindlex
