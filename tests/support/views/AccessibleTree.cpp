#include "support/views/AccessibleTree.h"

#include <QAccessible>
#include <QMetaEnum>

namespace brindlex {
namespace {

std::string roleOf(const QAccessibleInterface& element)
{
    const auto roles = QMetaEnum::fromType<QAccessible::Role>();
    const auto* const name = roles.valueToKey(element.role());
    return name ? name : "Unknown";
}

std::string statesOf(const QAccessibleInterface& element)
{
    const auto state = element.state();
    std::string text;
    const auto add = [&](bool isOn, const char* word) {
        if (isOn)
            text += std::string(" ") + word;
    };
    add(state.focusable, "focusable");
    add(state.checkable, state.checked ? "on" : "off");
    add(state.selected, "selected");
    add(state.disabled, "disabled");
    return text;
}

bool saysSomething(const QAccessibleInterface& element)
{
    return !element.text(QAccessible::Name).isEmpty() || !element.text(QAccessible::Value).isEmpty()
        || element.state().focusable;
}

void append(const QAccessibleInterface& element, int depth, std::string& tree)
{
    if (element.state().invisible)
        return;
    int childDepth = depth;
    if (saysSomething(element)) {
        tree += std::string(static_cast<std::size_t>(2 * depth), ' ') + roleOf(element) + " \""
            + element.text(QAccessible::Name).toStdString() + "\"";
        const auto value = element.text(QAccessible::Value);
        if (!value.isEmpty())
            tree += " = \"" + value.toStdString() + "\"";
        const auto description = element.text(QAccessible::Description);
        if (!description.isEmpty())
            tree += " (" + description.toStdString() + ")";
        tree += statesOf(element) + "\n";
        ++childDepth;
    }
    for (int index = 0; index < element.childCount(); ++index)
        if (const auto* const child = element.child(index))
            append(*child, childDepth, tree);
}

} // namespace

std::string accessibleTree(QWidget& window)
{
    std::string tree;
    append(*QAccessible::queryAccessibleInterface(&window), 0, tree);
    return tree;
}

} // namespace brindlex
