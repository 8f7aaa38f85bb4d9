// Reads the user's setting from the registry.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <QWinEventNotifier>
#include <utility>

#include "ui/services/ColorScheme.h"

namespace tarvelin {

namespace {

/// Reads the setting at once and whenever its key changes.
class RegistryColorScheme : public QObject {
  public:
    RegistryColorScheme(QObject* context, std::function<void(bool)> report)
        : QObject(context),
          m_report(std::move(report)),
          m_event(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
          m_notifier(m_event) {
        constexpr const wchar_t* kKeyPath =
            LR"(Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)";
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, kKeyPath, 0, KEY_READ, &m_key) != ERROR_SUCCESS) {
            return;
        }
        connect(&m_notifier, &QWinEventNotifier::activated, this, [this] { Read(); });
        Read();
    }
    RegistryColorScheme(const RegistryColorScheme&) = delete;
    RegistryColorScheme& operator=(const RegistryColorScheme&) = delete;
    ~RegistryColorScheme() override {
        m_notifier.setEnabled(false);
        if (m_key != nullptr) {
            ::RegCloseKey(m_key);
        }
        ::CloseHandle(m_event);
    }

  private:
    // A notification is for one change only, so ask for the next one before reading.
    void Read() {
        ::RegNotifyChangeKeyValue(m_key, FALSE, REG_NOTIFY_CHANGE_LAST_SET, m_event, TRUE);
        DWORD light = 1;
        DWORD length = sizeof(light);
        ::RegGetValueW(m_key, nullptr, L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light,
                       &length);
        m_report(light == 0);
    }

    std::function<void(bool)> m_report;
    HANDLE m_event;
    QWinEventNotifier m_notifier;
    HKEY m_key = nullptr;
};

}  // namespace

void WatchColorScheme(QObject* context, std::function<void(bool dark)> report) {
    // `context` owns it.
    new RegistryColorScheme(context, std::move(report));
}

}  // namespace tarvelin
