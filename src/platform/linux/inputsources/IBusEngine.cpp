#include "platform/linux/inputsources/IBusEngine.h"

#include <QDBusArgument>
#include <QDBusVariant>

#include <utility>

namespace brindlex {
namespace {

QVariantList variantsOf(const QVariant& array)
{
    if (array.metaType() != QMetaType::fromType<QDBusArgument>())
        return array.toList();
    const auto argument = array.value<QDBusArgument>();
    QVariantList variants;
    if (argument.currentSignature() != QLatin1String("av"))
        return variants;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant variant;
        argument >> variant;
        variants.append(QVariant::fromValue(variant));
    }
    argument.endArray();
    return variants;
}

} // namespace

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

std::vector<IBusEngine> ibusEngines(const QVariant& array)
{
    std::vector<IBusEngine> engines;
    for (const auto& description : variantsOf(array))
        if (auto engine = ibusEngine(description))
            engines.push_back(std::move(*engine));
    return engines;
}

} // namespace brindlex
