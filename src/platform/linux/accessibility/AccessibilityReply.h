#pragma once

#include "platform/linux/accessibility/AccessibilityBus.h"

#include <QDBusArgument>

namespace brindlex {

/// The container in a reply, or nothing when it has not exactly the signature: `QDBusArgument`
/// does not protect itself against being read as something that it is not.
std::optional<QDBusArgument> container(const QVariant& value, const char* signature);

/// Reads a list of references up to the limit.
std::vector<AccessibleObject> objects(const QDBusArgument& argument);

AccessibilityResult<QString> text(const QVariant& value);

/// What a property holds, or the value itself.
QVariant unpacked(const QVariant& value);

} // namespace brindlex
