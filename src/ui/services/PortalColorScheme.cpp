// The setting that desktops keep for programs on the bus of the session.
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

const QString kBereich = QStringLiteral("org.freedesktop.appearance");
const QString kSchluessel = QStringLiteral("color-scheme");
const QString kDienst = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPfad = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSchnittstelle = QStringLiteral("org.freedesktop.portal.Settings");

/// 1 asks for dark windows; an answer may stand within another.
bool FragtNachDunkel(QVariant wert) {
    while (wert.canConvert<QDBusVariant>()) {
        wert = wert.value<QDBusVariant>().variant();
    }
    return wert.toUInt() == 1;
}

}  // namespace

Farbwunschempfaenger::Farbwunschempfaenger(QObject* kontext, std::function<void(bool)> melde)
    : QObject(kontext), m_melde(std::move(melde)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(kDienst, kPfad, kSchnittstelle, QStringLiteral("SettingChanged"), this,
                SLOT(SettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage frage =
        QDBusMessage::createMethodCall(kDienst, kPfad, kSchnittstelle, QStringLiteral("Read"));
    frage << kBereich << kSchluessel;
    auto* const antwort = new QDBusPendingCallWatcher(bus.asyncCall(frage), this);
    connect(antwort, &QDBusPendingCallWatcher::finished, this, [this, antwort] {
        const QDBusPendingReply<QDBusVariant> wert = *antwort;
        if (!wert.isError()) {
            m_melde(FragtNachDunkel(wert.value().variant()));
        }
        antwort->deleteLater();
    });
}

void Farbwunschempfaenger::SettingChanged(const QString& bereich, const QString& schluessel,
                                          const QDBusVariant& wert) {
    if (bereich == kBereich && schluessel == kSchluessel) {
        m_melde(FragtNachDunkel(wert.variant()));
    }
}

void BeobachteFarbwunsch(QObject* kontext, std::function<void(bool dunkel)> melde) {
    // Without a bus the toolkit would start one.
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        // `kontext` owns it.
        new Farbwunschempfaenger(kontext, std::move(melde));
    }
}

}  // namespace tarvelin
