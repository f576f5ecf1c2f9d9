#include "platform/linux/appearance/PortalAppearance.h"

#include "platform/linux/appearance/FontDescription.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace brindlex {
namespace {

QString portalService() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString portalPath() { return QStringLiteral("/org/freedesktop/portal/desktop"); }
QString settingsInterface() { return QStringLiteral("org.freedesktop.portal.Settings"); }
QString appearanceSpace() { return QStringLiteral("org.freedesktop.appearance"); }
QString gnomeSpace() { return QStringLiteral("org.gnome.desktop.interface"); }

/// Of `color-scheme`, by the portal's documentation.
constexpr uint prefersDark = 1;
constexpr uint prefersLight = 2;

/// Of `text-scaling-factor`, by GNOME's schema.
constexpr double leastTextScale = 0.5;
constexpr double mostTextScale = 3;

std::optional<bool> darknessOf(const QVariant& value)
{
    const auto scheme = value.toUInt();
    if (scheme != prefersDark && scheme != prefersLight)
        return {};
    return scheme == prefersDark;
}

std::optional<double> textScaleOf(const QVariant& value)
{
    const auto scale = value.toDouble();
    if (!(scale > 0))
        return {};
    return std::clamp(scale, leastTextScale, mostTextScale);
}

/// Three parts from 0 to 1 as a number; nothing for any other colour, which stands for none.
std::optional<std::uint32_t> colourOf(const QVariant& value)
{
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)"))
        return {};
    std::array<double, 3> parts{};
    argument.beginStructure();
    argument >> parts[0] >> parts[1] >> parts[2];
    argument.endStructure();
    std::uint32_t colour = 0;
    for (const double part : parts) {
        if (!(part >= 0 && part <= 1))
            return {};
        colour = colour << 8 | static_cast<std::uint32_t>(std::lround(part * 255));
    }
    return colour;
}

} // namespace

PortalAppearance::PortalAppearance(QDBusConnection bus)
    : bus_(std::move(bus)),
      starts_(portalService(), bus_, QDBusServiceWatcher::WatchForRegistration),
      changes_(std::make_unique<DBusSignal>(bus_, portalPath(), settingsInterface(),
          QStringLiteral("SettingChanged"), QStringList{}, [this](const QDBusMessage& signal) {
              const auto arguments = signal.arguments();
              if (arguments.size() == 3)
                  note(arguments[0].toString(), arguments[1].toString(),
                      arguments[2].value<QDBusVariant>().variant());
          }))
{
    connect(&starts_, &QDBusServiceWatcher::serviceRegistered, this, [this] { ask(); });
    ask();
}

void PortalAppearance::ask()
{
    auto question = QDBusMessage::createMethodCall(
        portalService(), portalPath(), settingsInterface(), QStringLiteral("ReadAll"));
    question << QStringList{appearanceSpace(), gnomeSpace()};
    question.setAutoStartService(false);
    auto* const waiting = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(waiting, &QDBusPendingCallWatcher::finished, this,
        [this](QDBusPendingCallWatcher* finished) {
            finished->deleteLater();
            const auto reply = finished->reply();
            if (reply.type() != QDBusMessage::ReplyMessage
                || reply.signature() != QStringLiteral("a{sa{sv}}"))
                return;
            const auto spaces = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().first());
            for (auto space = spaces.begin(); space != spaces.end(); ++space)
                for (auto entry = space->begin(); entry != space->end(); ++entry)
                    note(space.key(), entry.key(), entry.value());
        });
}

void PortalAppearance::note(const QString& space, const QString& key, const QVariant& value)
{
    auto appearance = current_.value();
    if (space == appearanceSpace() && key == QStringLiteral("color-scheme"))
        appearance.isDark = darknessOf(value);
    else if (space == appearanceSpace() && key == QStringLiteral("accent-color"))
        appearance.accent = colourOf(value);
    else if (space == gnomeSpace() && key == QStringLiteral("enable-animations"))
        appearance.reducesMotion = value.toBool() ? std::nullopt : std::optional(true);
    else if (space == gnomeSpace() && key == QStringLiteral("font-name"))
        appearance.font = pangoFont(value.toString().toStdString());
    else if (space == gnomeSpace() && key == QStringLiteral("text-scaling-factor"))
        appearance.textScale = textScaleOf(value);
    if (appearance != current_.value())
        current_.set(appearance);
}

} // namespace brindlex
