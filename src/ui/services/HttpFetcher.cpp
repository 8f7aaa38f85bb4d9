// Fetches that wait without letting the screen freeze.
#include "ui/services/HttpFetcher.h"

#include <curl/curl.h>

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QUrl>
#include <memory>
#include <string_view>

#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// While it lives, clicks and keys go nowhere and the pointer tells that the program is busy.
/// Painting, timers and the close of a window go on, and a box that comes up takes its answer.
class Eingabesperre : public QObject {
  public:
    Eingabesperre() {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        QCoreApplication::instance()->installEventFilter(this);
    }
    Eingabesperre(const Eingabesperre&) = delete;
    Eingabesperre& operator=(const Eingabesperre&) = delete;
    ~Eingabesperre() override {
        // What was clicked meanwhile must not come through afterwards.
        QCoreApplication::processEvents();
        QApplication::restoreOverrideCursor();
    }

  protected:
    bool eventFilter(QObject* /*ziel*/, QEvent* event) override {
        if (QApplication::activeModalWidget() != nullptr) {
            return false;
        }
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::Wheel:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::ShortcutOverride:
            case QEvent::Shortcut:
            case QEvent::InputMethod:
            case QEvent::ContextMenu:
            case QEvent::NativeGesture:
            case QEvent::TouchBegin:
            case QEvent::TouchUpdate:
            case QEvent::TouchEnd:
            case QEvent::TabletPress:
            case QEvent::TabletRelease:
            case QEvent::DragEnter:
            case QEvent::Drop:
                return true;
            default:
                return false;
        }
    }
};

/// The address as it goes over the line; empty if it is none of the web.
std::string Webadresse(const std::string& adresse) {
    const QUrl url(ToQString(adresse));
    const bool gut =
        url.isValid() && !url.host().isEmpty() &&
        (url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https"));
    return gut ? url.toEncoded().toStdString() : std::string();
}

/// What has come of an answer.
struct Antwort {
    std::size_t Hoechstens = 0;
    std::string Bytes;
    /// The head came to its end, a blank line. A connection that closes before it leaves an answer
    /// that looks like an empty one.
    bool KopfIstGanz = false;
};

// What is taken is fewer than what came when it is too much, which ends the fetch.
std::size_t NimmBytes(const char* bytes, std::size_t /*eins*/, std::size_t anzahl, void* ziel) {
    auto& antwort = *static_cast<Antwort*>(ziel);
    if (anzahl > antwort.Hoechstens - antwort.Bytes.size()) {
        return 0;
    }
    antwort.Bytes.append(bytes, anzahl);
    return anzahl;
}

// Redirects and proxies have heads of their own before that of the answer; a body in chunks can
// have further lines behind it.
std::size_t NimmKopfzeile(const char* bytes, std::size_t /*eins*/, std::size_t anzahl, void* ziel) {
    auto& antwort = *static_cast<Antwort*>(ziel);
    const std::string_view zeile(bytes, anzahl);
    if (zeile.starts_with("HTTP/")) {
        antwort.KopfIstGanz = false;
        antwort.Bytes.clear();
    } else if (zeile == "\r\n" || zeile == "\n") {
        antwort.KopfIstGanz = true;
    }
    return anzahl;
}

using Abfrage = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

Abfrage NeueAbfrage(const std::string& adresse, std::chrono::milliseconds dauer, Antwort& antwort) {
    constexpr long kHoechstensUmgeleitet = 5;
    Abfrage abfrage(curl_easy_init(), &curl_easy_cleanup);
    const auto setze = [&abfrage](CURLoption option, auto wert) {
        curl_easy_setopt(abfrage.get(), option, wert);
    };
    setze(CURLOPT_URL, adresse.c_str());
    setze(CURLOPT_PROTOCOLS_STR, "http,https");
    setze(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    setze(CURLOPT_FOLLOWLOCATION, 1L);
    setze(CURLOPT_MAXREDIRS, kHoechstensUmgeleitet);
    setze(CURLOPT_TIMEOUT_MS, static_cast<long>(dauer.count()));
    setze(CURLOPT_USERAGENT, "Tarvelin");
    setze(CURLOPT_ACCEPT_ENCODING, "identity");
    setze(CURLOPT_WRITEFUNCTION, &NimmBytes);
    setze(CURLOPT_WRITEDATA, static_cast<void*>(&antwort));
    setze(CURLOPT_HEADERFUNCTION, &NimmKopfzeile);
    setze(CURLOPT_HEADERDATA, static_cast<void*>(&antwort));
    setze(CURLOPT_NOSIGNAL, 1L);
    // Where the platform checks certificates, a revocation list out of reach ends no fetch: as in
    // browsers.
    setze(CURLOPT_SSL_OPTIONS, static_cast<long>(CURLSSLOPT_REVOKE_BEST_EFFORT));
    // A name server that never answers doesn't hold up the end of the program.
    setze(CURLOPT_QUICK_EXIT, 1L);
    return abfrage;
}

bool IstOk(CURL* abfrage) {
    constexpr long kOk = 200;
    long status = 0;
    return curl_easy_getinfo(abfrage, CURLINFO_RESPONSE_CODE, &status) == CURLE_OK && status == kOk;
}

}  // namespace

/// The library's own set-up.
class Netzbibliothek {
  public:
    Netzbibliothek() { curl_global_init(CURL_GLOBAL_DEFAULT); }
    Netzbibliothek(const Netzbibliothek&) = delete;
    Netzbibliothek& operator=(const Netzbibliothek&) = delete;
    ~Netzbibliothek() { curl_global_cleanup(); }
};

class Netzabruf::Verbindungen {
  public:
    /// The result of the fetch, or nothing if `weiter` ended it. The screen lives on meanwhile.
    template <class Weiter>
    std::optional<CURLcode> FuehreAus(CURL* abfrage, Weiter weiter) {
        constexpr int kHappen = 10;
        curl_multi_add_handle(m_alle.get(), abfrage);
        std::optional<CURLcode> ergebnis;
        int laufende = 0;
        while (curl_multi_perform(m_alle.get(), &laufende) == CURLM_OK && laufende > 0) {
            QCoreApplication::processEvents();
            if (!weiter()) {
                break;
            }
            curl_multi_poll(m_alle.get(), nullptr, 0, kHappen, nullptr);
        }
        int uebrige = 0;
        const CURLMsg* const nachricht = curl_multi_info_read(m_alle.get(), &uebrige);
        if (nachricht != nullptr && nachricht->easy_handle == abfrage) {
            ergebnis = nachricht->data.result;
        }
        curl_multi_remove_handle(m_alle.get(), abfrage);
        return ergebnis;
    }

  private:
    Netzbibliothek m_bibliothek;
    std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> m_alle{curl_multi_init(),
                                                                 &curl_multi_cleanup};
};

Netzabruf::Netzabruf(Grenzen grenzen)
    : m_grenzen(grenzen), m_verbindungen(std::make_unique<Verbindungen>()) {}

Netzabruf::~Netzabruf() = default;

std::optional<std::string> Netzabruf::Hole(const std::string& adresse) {
    const std::string url = Webadresse(adresse);
    if (url.empty() || m_laeuft) {
        return std::nullopt;
    }
    const QScopedValueRollback laeuft(m_laeuft, true);
    const Eingabesperre sperre;
    Antwort antwort{.Hoechstens = m_grenzen.Bytes, .Bytes = {}};
    const Abfrage abfrage = NeueAbfrage(url, m_grenzen.Dauer, antwort);
    m_abgebrochen = false;
    const auto ergebnis =
        m_verbindungen->FuehreAus(abfrage.get(), [this] { return !m_abgebrochen; });
    const bool ganz = ergebnis == CURLE_OK && antwort.KopfIstGanz && IstOk(abfrage.get());
    return ganz ? std::optional(std::move(antwort.Bytes)) : std::nullopt;
}

void Netzabruf::Atme() {
    const Eingabesperre sperre;
    QCoreApplication::processEvents();
}

}  // namespace tarvelin
