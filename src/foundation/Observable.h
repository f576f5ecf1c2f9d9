#pragma once

#include "foundation/Subscribers.h"
#include "foundation/Subscription.h"

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace brindlex {

/// A source of values that can be shaped step by step before it is subscribed to:
///
///     store.config().stream().map(enabled).withoutRepeats().withoutFirst().subscribe(handler)
///
/// A stream holds nothing itself; each subscription starts its steps afresh.
template <typename Value>
class Stream {
public:
    using Handler = std::function<void(const Value&)>;
    using Connect = std::function<Subscription(Handler)>;

    explicit Stream(Connect connect) : connect_(std::move(connect)) { }

    /// Delivers the projection of each value.
    template <typename Projection>
    auto map(Projection projection) const
    {
        using Projected = std::decay_t<std::invoke_result_t<Projection, const Value&>>;
        return Stream<Projected>(
            [connect = connect_, projection](typename Stream<Projected>::Handler handler) {
                return connect([projection, handler = std::move(handler)](const Value& value) {
                    handler(std::invoke(projection, value));
                });
            });
    }

    /// Leaves out a value that equals the one delivered before it.
    Stream withoutRepeats() const
    {
        return Stream([connect = connect_](Handler handler) {
            return connect([handler = std::move(handler), last = std::optional<Value>()](
                               const Value& value) mutable {
                if (last == value)
                    return;
                last = value;
                handler(value);
            });
        });
    }

    /// Leaves out the first value, which at a subscription to an `Observable` is the replay of the
    /// current one.
    Stream withoutFirst() const
    {
        return Stream([connect = connect_](Handler handler) {
            return connect(
                [handler = std::move(handler), isFirst = true](const Value& value) mutable {
                    if (!std::exchange(isFirst, false))
                        handler(value);
                });
        });
    }

    Subscription subscribe(Handler handler) const { return connect_(std::move(handler)); }

private:
    Connect connect_;
};

/// A value whose changes are delivered to subscribers, in the order in which they subscribed.
///
/// A subscription replays the current value before it returns. Every `set` delivers, also of an
/// equal value. A `set` from inside a handler delivers its value to everybody and ends the outer
/// delivery, so that what a subscriber receives last is always the newest value. Subscriptions may
/// outlive the observable. One thread only.
template <typename Value>
class Observable {
public:
    using Handler = std::function<void(const Value&)>;

    explicit Observable(Value initial) : state_(std::make_shared<State>(std::move(initial))) { }
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;

    const Value& value() const { return *state_->value; }

    void set(Value value)
    {
        const auto state = state_;
        const auto published = std::make_shared<const Value>(std::move(value));
        state->value = published;
        state->subscribers.forEachWhile([&](const Handler& handler) {
            handler(*published);
            return state->value == published;
        });
    }

    Subscription subscribe(Handler handler) const { return stream().subscribe(std::move(handler)); }

    /// The values, to be shaped before they are subscribed to.
    Stream<Value> stream() const
    {
        return Stream<Value>([state = state_](Handler handler) {
            const auto shared = std::make_shared<Handler>(std::move(handler));
            auto subscription
                = state->subscribers.add([shared](const Value& value) { (*shared)(value); });
            const auto replayed = state->value;
            (*shared)(*replayed);
            return subscription;
        });
    }

private:
    struct State {
        explicit State(Value initial) : value(std::make_shared<const Value>(std::move(initial))) { }
        std::shared_ptr<const Value> value;
        Subscribers<Handler> subscribers;
    };
    std::shared_ptr<State> state_;
};

} // namespace brindlex
