#pragma once

#include <memory>

namespace brindlex {

/// Lets what outlives an object see that the object has gone. Held by the object as a field:
///
///     [this, alive = lifetime_.watch()] { if (!alive.expired()) work(); }
class Lifetime {
public:
    using Watch = std::weak_ptr<const void>;

    Lifetime() = default;
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;

    Watch watch() const { return token_; }

private:
    std::shared_ptr<const void> token_ = std::make_shared<char>();
};

} // namespace brindlex
