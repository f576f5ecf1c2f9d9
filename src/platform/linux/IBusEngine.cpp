#include "platform/linux/IBusEngine.h"

#include <QDBusArgument>
#include <QDBusVariant>

namespace brindlex {

std::optional<IBusEngine> ibusEngine(const QVariant& value)
{
    auto inner = value;
    while (inner.metaType() == QMetaType::fromType<QDBusVariant>())
        inner = inner.value<QDBusVariant>().variant();
    if (inner.metaType() != QMetaType::fromType<QDBusArgument>())
        return {};
    const auto argument = inner.value<QDBusArgument>();
    // IBusEngineDesc: type, attachments, name, long name, description, language, license, author,
    // icon, layout, rank, hotkeys, symbol, setup, variant, option, version, text domain and, by
    // version, more.
    if (!argument.currentSignature().startsWith(QLatin1String("(sa{sv}ssssssssussssss")))
        return {};
    argument.beginStructure();
    QString type;
    QVariantMap attachments;
    argument >> type >> attachments;
    QString before[8];
    for (auto& text : before)
        argument >> text;
    uint rank = 0;
    argument >> rank;
    QString after[7];
    for (auto& text : after) {
        if (argument.atEnd())
            break;
        argument >> text;
    }
    while (!argument.atEnd())
        argument.asVariant();
    argument.endStructure();
    return IBusEngine{
        .name = before[0].toStdString(),
        .longName = before[1].toStdString(),
        .layout = before[7].toStdString(),
        .variant = after[3].toStdString(),
        .catalogue = after[6].toStdString(),
    };
}

} // namespace brindlex
