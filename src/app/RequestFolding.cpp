#include "app/RequestFolding.h"

#include <utility>

namespace brindlex {

RequestFolding::RequestFolding(MainThread& mainThread, Seconds interval, std::function<void()> work)
    : mainThread_(mainThread), interval_(interval), work_(std::move(work))
{
}

void RequestFolding::request()
{
    if (pause_.isActive())
        isRequestedAgain_ = true;
    else
        carryOut();
}

void RequestFolding::cancel()
{
    pause_.reset();
    isRequestedAgain_ = false;
}

void RequestFolding::carryOut()
{
    pause_ = mainThread_.after(interval_, [this] {
        pause_.reset();
        if (std::exchange(isRequestedAgain_, false))
            carryOut();
    });
    work_();
}

} // namespace brindlex
