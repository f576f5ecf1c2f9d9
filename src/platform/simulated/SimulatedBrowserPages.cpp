#include "platform/simulated/SimulatedBrowserPages.h"

#include <utility>

namespace brindlex {
namespace {

constexpr Seconds readingTime = 0.002;

} // namespace

std::optional<std::string> SimulatedBrowserPages::currentURL(
    const std::string& bundleID, const std::string& script)
{
    scripts_.push_back(script);
    auto reply = known(bundleID);
    lastRead_[bundleID] = reply;
    if (!readings_[bundleID].isActive() && !held_.contains(bundleID))
        read(bundleID);
    return reply;
}

Subscription SimulatedBrowserPages::observeChanges(std::function<void()> handler)
{
    return journal_.addObservation("pages", observers_.add(std::move(handler)));
}

void SimulatedBrowserPages::setPage(const std::string& bundleID, std::optional<std::string> url)
{
    if (url)
        pages_[bundleID] = std::move(*url);
    else
        pages_.erase(bundleID);
}

void SimulatedBrowserPages::setBusy(bool isBusy)
{
    isBusy_ = isBusy;
    if (!isBusy)
        for (const auto& bundleID : std::exchange(held_, {}))
            read(bundleID);
}

void SimulatedBrowserPages::read(const std::string& bundleID)
{
    readings_[bundleID] = mainThread_.after(readingTime, [this, bundleID] { finish(bundleID); });
}

void SimulatedBrowserPages::finish(const std::string& bundleID)
{
    readings_[bundleID].reset();
    if (isBusy_) {
        held_.insert(bundleID);
        return;
    }
    if (const auto page = pages_.find(bundleID); page != pages_.end())
        read_[bundleID] = page->second;
    else
        read_.erase(bundleID);
    if (known(bundleID) != lastRead_[bundleID])
        observers_.notify();
}

std::optional<std::string> SimulatedBrowserPages::known(const std::string& bundleID) const
{
    const auto page = read_.find(bundleID);
    if (page == read_.end())
        return {};
    return page->second;
}

} // namespace brindlex
