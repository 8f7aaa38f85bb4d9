// The user's setting for programs, in the registry.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <QWinEventNotifier>
#include <utility>

#include "ui/services/ColorScheme.h"

namespace tarvelin {

namespace {

/// Reads the setting at once and whenever something changes beside it.
class Farbwunschleser : public QObject {
  public:
    Farbwunschleser(QObject* kontext, std::function<void(bool)> melde)
        : QObject(kontext),
          m_melde(std::move(melde)),
          m_ereignis(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
          m_waechter(m_ereignis) {
        constexpr const wchar_t* kOrt =
            LR"(Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)";
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, kOrt, 0, KEY_READ, &m_schluessel) != ERROR_SUCCESS) {
            return;
        }
        connect(&m_waechter, &QWinEventNotifier::activated, this, [this] { Lies(); });
        Lies();
    }
    Farbwunschleser(const Farbwunschleser&) = delete;
    Farbwunschleser& operator=(const Farbwunschleser&) = delete;
    ~Farbwunschleser() override {
        m_waechter.setEnabled(false);
        if (m_schluessel != nullptr) {
            ::RegCloseKey(m_schluessel);
        }
        ::CloseHandle(m_ereignis);
    }

  private:
    // A notice comes once; what changes behind it comes with the next.
    void Lies() {
        ::RegNotifyChangeKeyValue(m_schluessel, FALSE, REG_NOTIFY_CHANGE_LAST_SET, m_ereignis,
                                  TRUE);
        DWORD hell = 1;
        DWORD laenge = sizeof(hell);
        ::RegGetValueW(m_schluessel, nullptr, L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr,
                       &hell, &laenge);
        m_melde(hell == 0);
    }

    std::function<void(bool)> m_melde;
    HANDLE m_ereignis;
    QWinEventNotifier m_waechter;
    HKEY m_schluessel = nullptr;
};

}  // namespace

void BeobachteFarbwunsch(QObject* kontext, std::function<void(bool dunkel)> melde) {
    // `kontext` owns it.
    new Farbwunschleser(kontext, std::move(melde));
}

}  // namespace tarvelin
