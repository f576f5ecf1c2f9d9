#include "platform/linux/inputsources/IBusSelection.h"

#include <algorithm>
#include <utility>

namespace brindlex {

std::optional<std::string> IBusSelection::engine() const
{
    return wanted_ ? wanted_->engine : selected_;
}

bool IBusSelection::want(Wish wish)
{
    if (!wanted_ && selected_ == wish.engine)
        return false;
    wanted_ = std::move(wish);
    return !asked_;
}

IBusSelection::Wish IBusSelection::ask()
{
    asked_ = wanted_;
    echoes_.push_back(asked_->engine);
    return *asked_;
}

bool IBusSelection::take(bool isRefused)
{
    const auto asked = *std::exchange(asked_, std::nullopt);
    if (isRefused)
        std::erase(echoes_, asked.engine);
    else
        selected_ = asked.engine;
    if (wanted_->engine != asked.engine)
        return false;
    wanted_.reset();
    return true;
}

bool IBusSelection::hear(const std::string& engine)
{
    const auto echo = std::find(echoes_.begin(), echoes_.end(), engine);
    echoes_.erase(echoes_.begin(), echo == echoes_.end() ? echo : echo + 1);
    // Another selection of ours came after this one, and its own signal is on the way.
    if (!echoes_.empty())
        return false;
    selected_ = engine;
    return true;
}

} // namespace brindlex
