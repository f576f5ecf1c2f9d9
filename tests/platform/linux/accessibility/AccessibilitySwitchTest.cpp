#include "platform/linux/accessibility/AccessibilitySwitch.h"

#include "platform/linux/system/SessionBus.h"
#include "support/basics/RecordedLog.h"
#include "support/bus/BusConnection.h"
#include "support/bus/PrivateBus.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"

#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using State = AutomationPermission::State;

/// An accessibility launcher that replies with whatever it is told.
class FakeLauncher : public QDBusVirtualObject {
public:
    explicit FakeLauncher(const std::string& busAddress)
        : bus_(QDBusConnection::connectToBus(
            QString::fromStdString(busAddress), QStringLiteral("launcher")))
    {
        bus_.registerVirtualObject(QStringLiteral("/org/a11y/bus"), this);
        bus_.registerService(QStringLiteral("org.a11y.Bus"));
    }
    ~FakeLauncher() override
    {
        bus_ = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(QStringLiteral("launcher"));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        if (message.member() == QStringLiteral("Set"))
            return bus.send(message.createErrorReply(QDBusError::AccessDenied, "not today"));
        return bus.send(message.createReply(reply));
    }

    QVariantList reply;

private:
    QDBusConnection bus_;
};

bool becomes(const AccessibilitySwitch& read, State state)
{
    return loopUntil([&] { return read.state().value() == state; });
}

TEST(AccessibilitySwitch, staysOnInTheSettingsOfTheDesktop)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    SessionBus bus;
    AccessibilitySwitch accessibility(bus.connection());

    accessibility.request();

    EXPECT_TRUE(becomes(accessibility, State::on));
    // Where the settings of the desktops of tests are kept.
    const auto settings = desktop.configFolder() / "glib-2.0/settings/keyfile";
    EXPECT_TRUE(eventually([&] {
        return contentOf(settings).find("toolkit-accessibility=true") != std::string::npos;
    }));
}

TEST(AccessibilitySwitch, asksNobodyUntilItIsRefreshed)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    SessionBus bus;
    const AccessibilitySwitch accessibility(bus.connection());
    bus.flush();

    EXPECT_FALSE(BusConnection().hasOwner("org.a11y.Bus"));
}

TEST(AccessibilitySwitch, isUnavailableWithoutALauncher)
{
    const PrivateBus bus;
    SessionBus session(bus.address());
    AccessibilitySwitch accessibility(session.connection());

    accessibility.refresh();

    EXPECT_TRUE(becomes(accessibility, State::unavailable));
}

TEST(AccessibilitySwitch, isUnavailableWithoutABus)
{
    PrivateBus bus;
    SessionBus session(bus.address());
    bus.end();
    AccessibilitySwitch accessibility(session.connection());

    accessibility.refresh();

    EXPECT_TRUE(becomes(accessibility, State::unavailable));
}

TEST(AccessibilitySwitch, isUnavailableWhereTheReplyIsNoFlag)
{
    const PrivateBus bus;
    SessionBus session(bus.address());
    FakeLauncher launcher(bus.address());
    for (const auto& reply :
        {QVariantList{}, QVariantList{QVariant::fromValue(QDBusVariant(QStringLiteral("yes")))},
            QVariantList{QVariant::fromValue(QDBusVariant(1))}}) {
        launcher.reply = reply;
        AccessibilitySwitch accessibility(session.connection());

        accessibility.refresh();

        EXPECT_TRUE(becomes(accessibility, State::unavailable));
    }
}

TEST(AccessibilitySwitch, logsThatItCannotBeSwitchedOnAndShowsWhatIs)
{
    const PrivateBus bus;
    SessionBus session(bus.address());
    FakeLauncher launcher(bus.address());
    launcher.reply = {QVariant::fromValue(QDBusVariant(false))};
    const RecordedLog log;
    AccessibilitySwitch accessibility(session.connection());

    accessibility.request();

    EXPECT_TRUE(becomes(accessibility, State::off));
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"ERROR [input-method] The desktop’s accessibility cannot be "
                                 "switched on: not today"});
}

TEST(AccessibilitySwitch, mayEndBeforeTheReply)
{
    const PrivateBus bus;
    SessionBus session(bus.address());
    {
        AccessibilitySwitch accessibility(session.connection());
        accessibility.refresh();
        accessibility.request();
    }
    session.flush();
}

} // namespace
} // namespace brindlex
