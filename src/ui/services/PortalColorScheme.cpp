// Asks the desktop's settings portal.
#include "ui/services/PortalColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <utility>

#include "ui/services/ColorScheme.h"

namespace tarvelin {

namespace {

constexpr QLatin1String kNamespace("org.freedesktop.appearance");
constexpr QLatin1String kKey("color-scheme");
constexpr QLatin1String kService("org.freedesktop.portal.Desktop");
constexpr QLatin1String kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String kInterface("org.freedesktop.portal.Settings");

/// 1 asks for dark windows. The value may be wrapped in variants, even twice.
bool AsksForDark(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value.toUInt() == 1;
}

}  // namespace

PortalColorScheme::PortalColorScheme(QObject* context, std::function<void(bool)> report)
    : QObject(context), m_report(std::move(report)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(SettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage request =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    request << QString(kNamespace) << QString(kKey);
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> value = *watcher;
        if (!value.isError()) {
            m_report(AsksForDark(value.value().variant()));
        }
        watcher->deleteLater();
    });
}

void PortalColorScheme::SettingChanged(const QString& range, const QString& key,
                                       const QDBusVariant& value) {
    if (range == kNamespace && key == kKey) {
        m_report(AsksForDark(value.variant()));
    }
}

void WatchColorScheme(QObject* context, std::function<void(bool dark)> report) {
    // Without this the toolkit would start a bus where there is none.
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        // `context` owns it.
        new PortalColorScheme(context, std::move(report));
    }
}

}  // namespace tarvelin
