#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

namespace brindlex {

/// Brings a member that was removed from a list back to its place, or to the end of a list that has
/// become shorter; not when the list has one again with the same `identity`, a field or a function
/// of a member.
template <typename Member, typename Identity>
void restoreMember(
    std::vector<Member>& members, const Member& member, std::size_t index, Identity identity)
{
    const auto isTheSame = [&](const Member& each) {
        return std::invoke(identity, each) == std::invoke(identity, member);
    };
    if (std::any_of(members.begin(), members.end(), isTheSame))
        return;
    const auto place = std::min(index, members.size());
    members.insert(members.begin() + static_cast<std::ptrdiff_t>(place), member);
}

} // namespace brindlex
