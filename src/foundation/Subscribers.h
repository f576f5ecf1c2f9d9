#pragma once

#include "foundation/Subscription.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace brindlex {

/// Who is to be notified, in the order of subscribing.
///
/// Subscribing and unsubscribing are allowed while the subscribers are being notified: who has gone
/// is notified no more, who has come is notified from the next time on. One thread only.
template <typename Handler>
class Subscribers {
public:
    Subscription add(Handler handler)
    {
        auto entry = std::make_shared<Entry>(Entry{std::move(handler), true});
        entries_->push_back(entry);
        return Subscription([entries = std::weak_ptr(entries_), entry] {
            entry->isActive = false;
            if (const auto list = entries.lock())
                std::erase(*list, entry);
        });
    }

    bool isEmpty() const { return entries_->empty(); }

    /// Calls `visit` with each handler until it returns false.
    template <typename Visit>
    void forEachWhile(Visit visit) const
    {
        const auto present = *entries_;
        for (const auto& entry : present)
            if (entry->isActive && !visit(entry->handler))
                return;
    }

    /// Calls each handler with the arguments.
    template <typename... Arguments>
    void notify(const Arguments&... arguments) const
    {
        forEachWhile([&](Handler& handler) {
            handler(arguments...);
            return true;
        });
    }

private:
    struct Entry {
        Handler handler;
        bool isActive;
    };
    using Entries = std::vector<std::shared_ptr<Entry>>;
    std::shared_ptr<Entries> entries_ = std::make_shared<Entries>();
};

} // namespace brindlex
