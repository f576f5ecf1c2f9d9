#include "mouse/ResizeControlSearch.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace brindlex {
namespace {

constexpr int farthestAncestor = 3;

constexpr std::array<std::string_view, 3> resizeRoles{"AXSplitter", "AXGrowArea", "AXHandle"};

} // namespace

std::string ResizeControlSearch::summary() const
{
    std::string roles;
    for (const auto& entry : entries)
        roles += (roles.empty() ? "" : " > ") + entry;
    return std::string("resizeControl=") + (isFound ? "true" : "false")
        + " roles=" + (roles.empty() ? "none" : roles);
}

ResizeControlSearch searchResizeControl(AccessibilityTree& tree, Point point)
{
    ResizeControlSearch search;
    auto element = tree.elementAt(point, accessibilityMessagingTimeout);
    for (int ancestor = 0; element; ++ancestor) {
        element->setMessagingTimeout(accessibilityMessagingTimeout);
        const auto role = element->role();
        const auto subrole = element->subrole();
        const auto description = element->roleDescription();
        search.entries.push_back("role=" + role.value_or("nil")
            + (subrole ? ",subrole=" + *subrole : "")
            + (description ? ",description=" + *description : ""));
        if (role && std::ranges::find(resizeRoles, *role) != resizeRoles.end()) {
            search.isFound = true;
            break;
        }
        if (ancestor == farthestAncestor)
            break;
        element = element->parent();
    }
    return search;
}

} // namespace brindlex
