#pragma once

#include <functional>
#include <utility>

namespace brindlex {

/// Keeps a registration alive; its destruction ends it. Empty when default-constructed.
///
/// The end of a registration runs at most once, on the thread that destroys or resets the holder.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end) : end_(std::move(end)) { }
    ~Subscription() { reset(); }

    Subscription(Subscription&& other) noexcept : end_(std::exchange(other.end_, nullptr)) { }
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            reset();
            end_ = std::exchange(other.end_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    bool isActive() const { return static_cast<bool>(end_); }

    void reset()
    {
        if (const auto end = std::exchange(end_, nullptr))
            end();
    }

private:
    std::function<void()> end_;
};

} // namespace brindlex
