#include "platform/linux/inputsources/Fcitx5Method.h"

#include <QDBusArgument>

#include <utility>

namespace brindlex {
namespace {

std::vector<Fcitx5Method> methodsOf(const QVariant& value, const char* signature)
{
    std::vector<Fcitx5Method> methods;
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return methods;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String(signature))
        return methods;
    argument.beginArray();
    while (!argument.atEnd()) {
        Fcitx5Method method;
        argument.beginStructure();
        argument >> method.method >> method.name;
        while (!argument.atEnd())
            argument.asVariant();
        argument.endStructure();
        methods.push_back(std::move(method));
    }
    argument.endArray();
    return methods;
}

} // namespace

std::vector<Fcitx5Method> fcitx5Methods(const QVariant& value)
{
    return methodsOf(value, "a(ssssssb)");
}

std::vector<Fcitx5Method> fcitx5GroupMembers(const QVariant& value)
{
    return methodsOf(value, "a(ss)");
}

} // namespace brindlex
