#include "platform/linux/appearance/PortalAppearance.h"

#include "platform/linux/system/SessionBus.h"
#include "support/bus/PrivateBus.h"
#include "support/loops/QtLoop.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <gtest/gtest.h>

namespace brindlex {

/// A colour as the portal sends it.
struct PortalColour {
    double red = 0;
    double green = 0;
    double blue = 0;

    friend QDBusArgument& operator<<(QDBusArgument& argument, const PortalColour& colour)
    {
        argument.beginStructure();
        argument << colour.red << colour.green << colour.blue;
        argument.endStructure();
        return argument;
    }
    friend const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColour& colour)
    {
        argument.beginStructure();
        argument >> colour.red >> colour.green >> colour.blue;
        argument.endStructure();
        return argument;
    }
};

} // namespace brindlex

Q_DECLARE_METATYPE(brindlex::PortalColour)

namespace brindlex {
namespace {

using Settings = QMap<QString, QVariantMap>;

/// The settings portal of a desktop.
class FakePortal : public QDBusVirtualObject {
public:
    explicit FakePortal(const std::string& busAddress)
        : bus_(QDBusConnection::connectToBus(QString::fromStdString(busAddress), "portal"))
    {
        qDBusRegisterMetaType<PortalColour>();
        qDBusRegisterMetaType<Settings>();
        bus_.registerVirtualObject("/org/freedesktop/portal/desktop", this);
    }
    ~FakePortal() override
    {
        bus_ = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus("portal");
    }

    void start() { bus_.registerService("org.freedesktop.portal.Desktop"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        return message.member() == QStringLiteral("ReadAll")
            && bus.send(message.createReply(QVariant::fromValue(settings)));
    }
    void change(const QString& space, const QString& key, const QVariant& value)
    {
        auto signal = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
        signal << space << key << QVariant::fromValue(QDBusVariant(value));
        bus_.send(signal);
    }

    Settings settings;

private:
    QDBusConnection bus_;
};

const QString appearance = QStringLiteral("org.freedesktop.appearance");

class PortalAppearanceTest : public testing::Test {
protected:
    bool becomes(const PortalAppearance& portal, const DesktopAppearance& expected)
    {
        return loop.runUntil([&] { return portal.current().value() == expected; });
    }

    QtLoop loop;
    PrivateBus bus;
    SessionBus session{bus.address()};
    FakePortal portal{bus.address()};
};

TEST_F(PortalAppearanceTest, isWhatThePortalHasAlready)
{
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.settings[appearance]["accent-color"] = QVariant::fromValue(PortalColour{0.2, 0.4, 1.0});
    portal.settings["org.gnome.desktop.interface"]["enable-animations"] = false;
    portal.start();

    const PortalAppearance read(session.connection());

    EXPECT_TRUE(becomes(read, {true, 0x3366ff, true}));
}

TEST_F(PortalAppearanceTest, isLightWithoutAPortalAndFollowsOneThatStartsLate)
{
    const PortalAppearance read(session.connection());
    EXPECT_EQ(read.current().value(), DesktopAppearance{});

    portal.settings[appearance]["color-scheme"] = 1U;
    portal.start();

    EXPECT_TRUE(becomes(read, {.isDark = true}));
}

TEST_F(PortalAppearanceTest, followsChanges)
{
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.start();
    const PortalAppearance read(session.connection());
    ASSERT_TRUE(becomes(read, {.isDark = true}));

    portal.change(appearance, "color-scheme", 2U);

    EXPECT_TRUE(becomes(read, {}));
}

TEST_F(PortalAppearanceTest, hasNoAccentOutsideOfTheColours)
{
    portal.settings[appearance]["accent-color"] = QVariant::fromValue(PortalColour{-1, -1, -1});
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.start();
    const PortalAppearance read(session.connection());
    EXPECT_TRUE(becomes(read, {.isDark = true}));

    portal.change(appearance, "accent-color", QStringLiteral("blue"));
    portal.change(appearance, "color-scheme", 0U);

    EXPECT_TRUE(becomes(read, {}));
}

} // namespace
} // namespace brindlex
