#include "platform/linux/accessibility/AccessibilityReply.h"

#include <QDBusVariant>

namespace brindlex {

std::optional<QDBusArgument> container(const QVariant& value, const char* signature)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return {};
    auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String(signature))
        return {};
    return argument;
}

std::vector<AccessibleObject> objects(const QDBusArgument& argument)
{
    std::vector<AccessibleObject> found;
    argument.beginArray();
    while (!argument.atEnd() && found.size() < AccessibilityBus::mostListEntries) {
        QString service;
        QDBusObjectPath path;
        argument.beginStructure();
        argument >> service >> path;
        argument.endStructure();
        found.push_back({service, path.path()});
    }
    argument.endArray();
    return found;
}

AccessibilityResult<QString> text(const QVariant& value)
{
    if (value.metaType() != QMetaType::fromType<QString>())
        return fail(AccessibilityProblem::refused);
    return value.toString();
}

QVariant unpacked(const QVariant& value)
{
    return value.metaType() == QMetaType::fromType<QDBusVariant>()
        ? value.value<QDBusVariant>().variant()
        : value;
}

} // namespace brindlex
