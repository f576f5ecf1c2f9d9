#include "platform/linux/accessibility/AccessibilitySwitch.h"

#include "log/Log.h"
#include "platform/linux/accessibility/AccessibilityInterfaces.h"
#include "platform/linux/accessibility/AccessibilityReply.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <utility>

namespace brindlex {
namespace {

QDBusMessage propertyQuestion(const QString& operation)
{
    auto question = QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"),
        QStringLiteral("/org/a11y/bus"), accessibilityInterface::properties, operation);
    question << QStringLiteral("org.a11y.Status") << QStringLiteral("IsEnabled");
    return question;
}

AutomationPermission::State stateIn(const QDBusMessage& reply)
{
    using State = AutomationPermission::State;
    const auto flag = unpacked(reply.arguments().value(0));
    if (reply.type() != QDBusMessage::ReplyMessage
        || flag.metaType() != QMetaType::fromType<bool>())
        return State::unavailable;
    return flag.toBool() ? State::on : State::off;
}

} // namespace

void AccessibilitySwitch::refresh()
{
    ask(propertyQuestion(QStringLiteral("Get")),
        [this](const QDBusMessage& reply) { state_.set(stateIn(reply)); });
}

void AccessibilitySwitch::request()
{
    auto command = propertyQuestion(QStringLiteral("Set"));
    command << QVariant::fromValue(QDBusVariant(true));
    ask(command, [this](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ErrorMessage)
            Log::error("The desktop’s accessibility cannot be switched on: "
                    + reply.errorMessage().toStdString(),
                logCategory::inputMethod);
        refresh();
    });
}

void AccessibilitySwitch::ask(
    const QDBusMessage& question, std::function<void(const QDBusMessage& reply)> handler)
{
    auto* const waiting = new QDBusPendingCallWatcher(bus_.asyncCall(question), &context_);
    QObject::connect(waiting, &QDBusPendingCallWatcher::finished, &context_,
        [handler = std::move(handler)](QDBusPendingCallWatcher* finished) {
            finished->deleteLater();
            handler(finished->reply());
        });
}

} // namespace brindlex
