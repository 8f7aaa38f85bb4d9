// Follows the desktop's setting for light or dark windows on the session bus.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <functional>

namespace tarvelin {

class PortalColorScheme : public QObject {
    Q_OBJECT

  public:
    /// Asks at once. `context` becomes the owner.
    PortalColorScheme(QObject* context, std::function<void(bool)> report);

  private slots:
    void SettingChanged(const QString& range, const QString& key, const QDBusVariant& value);

    // NOLINTNEXTLINE(readability-redundant-access-specifiers): ends the slots
  private:
    std::function<void(bool)> m_report;
};

}  // namespace tarvelin
