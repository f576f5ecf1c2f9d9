#pragma once

#include "platform/SessionLock.h"

#include <memory>
#include <utility>

namespace brindlex {

/// Locked when one of two ways to know it says so; the first is asked first.
class EitherSessionLock : public SessionLock {
public:
    EitherSessionLock(std::shared_ptr<SessionLock> first, std::shared_ptr<SessionLock> second)
        : first_(std::move(first)), second_(std::move(second))
    {
    }

    bool isLocked() override { return first_->isLocked() || second_->isLocked(); }

private:
    std::shared_ptr<SessionLock> first_;
    std::shared_ptr<SessionLock> second_;
};

} // namespace brindlex
