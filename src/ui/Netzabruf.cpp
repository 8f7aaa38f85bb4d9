// Fetches that wait without letting the screen freeze.
#include "ui/Netzabruf.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <memory>

#include "ui/Bauteile.h"

namespace tarvelin {

namespace {

/// While it lives, clicks and keys go nowhere and the pointer tells that the program is busy.
/// Painting, timers and the close of a window go on.
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

bool IstWebadresse(const QUrl& adresse) {
    return adresse.isValid() && !adresse.host().isEmpty() &&
           (adresse.scheme() == QStringLiteral("http") ||
            adresse.scheme() == QStringLiteral("https"));
}

QNetworkRequest Anfrage(const QUrl& adresse) {
    QNetworkRequest anfrage(adresse);
    // The toolkit loses its way at a second redirect whose server closes the connection.
    anfrage.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    anfrage.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    // As the file lies there: nothing that could swell when it is unpacked.
    anfrage.setRawHeader("Accept-Encoding", "identity");
    return anfrage;
}

bool IstGut(const QNetworkReply& antwort, qint64 erhalten) {
    constexpr int kOk = 200;
    const QVariant laenge = antwort.header(QNetworkRequest::ContentLengthHeader);
    return antwort.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == kOk &&
           (!laenge.isValid() || laenge.toLongLong() == erhalten);
}

}  // namespace

Netzabruf::Netzabruf(Grenzen grenzen) : m_grenzen(grenzen) {}

std::optional<std::string> Netzabruf::Hole(const std::string& adresse) {
    constexpr int kHoechstensUmgeleitet = 5;
    const Eingabesperre sperre;
    const QDeadlineTimer frist(m_grenzen.Dauer);
    QUrl url(AlsQString(adresse));
    for (int umgeleitet = 0; umgeleitet <= kHoechstensUmgeleitet && IstWebadresse(url);
         ++umgeleitet) {
        const Antwort antwort = Frage(url, frist);
        if (antwort.Weiter.isEmpty()) {
            return antwort.Bytes;
        }
        url = url.resolved(antwort.Weiter);
    }
    return std::nullopt;
}

Netzabruf::Antwort Netzabruf::Frage(const QUrl& url, const QDeadlineTimer& frist) {
    const std::unique_ptr<QNetworkReply> antwort(m_netz.get(Anfrage(url)));
    // A pointer that forgets the answer when it goes.
    // cppcheck-suppress danglingLifetime
    m_antwort = antwort.get();
    std::string bytes;
    QObject::connect(antwort.get(), &QNetworkReply::readyRead, antwort.get(), [&] {
        bytes += antwort->readAll().toStdString();
        if (static_cast<qint64>(bytes.size()) > m_grenzen.Bytes) {
            antwort->abort();
        }
    });
    QEventLoop schleife;
    QObject::connect(antwort.get(), &QNetworkReply::finished, &schleife, &QEventLoop::quit);
    QTimer::singleShot(std::chrono::milliseconds(frist.remainingTime()), Qt::PreciseTimer,
                       antwort.get(), [&] { antwort->abort(); });
    if (!antwort->isFinished()) {
        schleife.exec();
    }
    // The end of the program ends the loop too.
    if (!antwort->isFinished() || antwort->error() != QNetworkReply::NoError) {
        return {};
    }
    const QUrl weiter = antwort->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (weiter.isEmpty() && IstGut(*antwort, static_cast<qint64>(bytes.size()))) {
        return {.Bytes = bytes, .Weiter = {}};
    }
    return {.Bytes = std::nullopt, .Weiter = weiter};
}

void Netzabruf::Atme() {
    const Eingabesperre sperre;
    QCoreApplication::processEvents();
}

void Netzabruf::BrichAb() {
    if (m_antwort != nullptr) {
        m_antwort->abort();
    }
}

}  // namespace tarvelin
