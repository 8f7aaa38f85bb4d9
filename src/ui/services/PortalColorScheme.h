// Who listens on the bus of the session for the desktop's colours.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <functional>

namespace tarvelin {

class Farbwunschempfaenger : public QObject {
    Q_OBJECT

  public:
    /// Asks at once. `kontext` becomes its owner.
    Farbwunschempfaenger(QObject* kontext, std::function<void(bool)> melde);

  private slots:
    void SettingChanged(const QString& bereich, const QString& schluessel,
                        const QDBusVariant& wert);

    // NOLINTNEXTLINE(readability-redundant-access-specifiers): what was above were slots
  private:
    std::function<void(bool)> m_melde;
};

}  // namespace tarvelin
