#pragma once

#include <optional>
#include <utility>

namespace brindlex {

/// A place for one instance, which is made on first use and stays as long as the place.
template <typename Instance>
class MadeOnFirstUse {
public:
    /// The instance; made of the arguments unless it is there.
    template <typename... Arguments>
    Instance& get(Arguments&&... arguments)
    {
        if (!instance_)
            instance_.emplace(std::forward<Arguments>(arguments)...);
        return *instance_;
    }

    /// The instance; null before its first use.
    Instance* ifMade() { return instance_ ? &*instance_ : nullptr; }

private:
    std::optional<Instance> instance_;
};

} // namespace brindlex
