#include "platform/linux/accessibility/AccessibilityRole.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace brindlex {
namespace {

/// By the numbers of `AtspiRole`.
constexpr std::array<std::pair<std::uint32_t, std::string_view>, 26> commonRoles{{
    {7, "AXCheckBox"},
    {11, "AXComboBox"},
    {16, "AXWindow"},
    {23, "AXWindow"},
    {27, "AXImage"},
    {29, "AXStaticText"},
    {31, "AXList"},
    {33, "AXMenu"},
    {34, "AXMenuBar"},
    {35, "AXMenuItem"},
    {38, "AXTabGroup"},
    {42, "AXProgressIndicator"},
    {43, "AXButton"},
    {44, "AXRadioButton"},
    {48, "AXScrollBar"},
    {49, "AXScrollArea"},
    {51, "AXSlider"},
    {53, "AXSplitGroup"},
    {55, "AXTable"},
    {56, "AXCell"},
    {61, "AXTextArea"},
    {63, "AXToolbar"},
    {65, "AXOutline"},
    {69, "AXWindow"},
    {75, "AXApplication"},
    {95, "AXWebArea"},
}};

} // namespace

bool AccessibilityRole::needsNames() const
{
    return number == invalid || number == unknown || number == filler || number == panel;
}

std::string AccessibilityRole::text() const
{
    if (roleName == "grip")
        return "AXHandle";
    const bool isThin = number == separator && thickness > 0 && thickness <= thickestSplitter;
    if (isThin || name == "GtkPanedHandle" || (number == splitPane && isDeepest))
        return "AXSplitter";
    const auto found = std::ranges::find_if(
        commonRoles, [this](const auto& entry) { return entry.first == number; });
    if (found != commonRoles.end())
        return std::string(found->second);
    return needsNames() ? "AXGroup" : "AXUnknown";
}

} // namespace brindlex
