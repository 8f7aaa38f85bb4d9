// Who listens on the bus of the session for the desktop's colours.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <functional>

namespace tarvelin {

class PortalColorScheme : public QObject {
    Q_OBJECT

  public:
    /// Asks at once. `context` becomes its owner.
    PortalColorScheme(QObject* context, std::function<void(bool)> report);

  private slots:
    void SettingChanged(const QString& range, const QString& key, const QDBusVariant& value);

    // NOLINTNEXTLINE(readability-redundant-access-specifiers): what was above were slots
  private:
    std::function<void(bool)> m_report;
};

}  // namespace tarvelin
