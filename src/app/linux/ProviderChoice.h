#pragma once

#include "foundation/FatalError.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

namespace brindlex {

/// One way to provide an ability: whether the session offers what it needs, and how it is made.
template <typename Ability>
struct ProviderRow {
    bool isOffered = false;
    std::function<std::shared_ptr<Ability>()> make{};
};

/// Chooses a provider for each ability and keeps what it has chosen, the latest to be released
/// first.
class ProviderChoice {
public:
    ProviderChoice() = default;
    ~ProviderChoice()
    {
        while (!chosen_.empty())
            chosen_.pop_back();
    }
    ProviderChoice(const ProviderChoice&) = delete;
    ProviderChoice& operator=(const ProviderChoice&) = delete;

    /// The ability by the first row that the session offers; the others are not made. That there
    /// is none is a fatal error.
    template <typename Ability>
    Ability& of(std::initializer_list<ProviderRow<Ability>> rows)
    {
        for (const auto& row : rows) {
            if (!row.isOffered)
                continue;
            auto provider = row.make();
            chosen_.push_back(provider);
            return *provider;
        }
        fatalError("The session offers nothing that an ability could be made of");
    }

private:
    std::vector<std::shared_ptr<void>> chosen_;
};

} // namespace brindlex
