// The real fetch against a real server on this machine, with all its whims.
#ifdef _WIN32
#include <winsock2.h>
using Anschluss = SOCKET;
#else
#include <sys/socket.h>
using Anschluss = int;
#endif

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include "TestSupport.h"
#include "ui/services/HttpFetcher.h"

namespace tarvelin {
namespace {

/// Answers each request by its path: "/gut" with what stands under it in a table of whole answers.
class Server {
  public:
    Server() {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, [this] {
            QTcpSocket* const kunde = m_server.nextPendingConnection();
            QObject::connect(kunde, &QTcpSocket::readyRead, kunde, [this, kunde] {
                const QByteArray anfrage = kunde->readAll();
                const std::string pfad = anfrage.split(' ').value(1).toStdString();
                ++Anfragen;
                Antworte(*kunde, pfad);
            });
        });
    }

    std::string Adresse(const std::string& pfad) const {
        return "http://127.0.0.1:" + std::to_string(m_server.serverPort()) + pfad;
    }

    std::map<std::string, std::string> Antworten;
    int Anfragen = 0;
    /// What comes behind an answer: a clean close, a reset, or nothing.
    bool Schliessen = true;
    bool Zuruecksetzen = false;

  private:
    void Antworte(QTcpSocket& kunde, const std::string& pfad) {
        if (pfad == "/endlos") {
            kunde.write("HTTP/1.1 200 OK\r\n\r\n");
            QObject::connect(&kunde, &QTcpSocket::bytesWritten, &kunde,
                             [&kunde] { kunde.write(QByteArray(65536, 'x')); });
            return;
        }
        if (pfad == "/stumm") {
            return;
        }
        if (pfad == "/tropfen") {
            kunde.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
            auto* const takt = new QTimer(&kunde);
            QObject::connect(takt, &QTimer::timeout, &kunde, [&kunde] { kunde.write("x"); });
            takt->start(20);
            return;
        }
        kunde.write(QByteArray::fromStdString(Antworten[pfad]));
        if (Zuruecksetzen) {
            kunde.flush();
            const linger hart{.l_onoff = 1, .l_linger = 0};
            ::setsockopt(static_cast<Anschluss>(kunde.socketDescriptor()), SOL_SOCKET, SO_LINGER,
                         reinterpret_cast<const char*>(&hart), sizeof hart);
            kunde.abort();
        } else if (Schliessen) {
            kunde.disconnectFromHost();
        }
    }

    QTcpServer m_server;
};

std::string Gut(const std::string& inhalt) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(inhalt.size()) + "\r\n\r\n" +
           inhalt;
}

std::string Umleitung(const std::string& ziel) {
    return "HTTP/1.1 302 Found\r\nLocation: " + ziel +
           "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";
}

constexpr const char* kStuecke = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

TEST(Netzabruf, HoltNurGanzesUndGutes) {
    Server server;
    HttpFetcher netz;
    const std::string bytes("a\0b\xff\r\n", 6);
    server.Antworten = {
        {"/gut", Gut(bytes)},
        {"/leer", Gut("")},
        {"/ohnelaenge", "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nInhalt"},
        {"/stuecke", kStuecke + std::string("5\r\nhallo\r\n1\r\n!\r\n0\r\n\r\n")},
        {"/anhang", kStuecke + std::string("2\r\nda\r\n0\r\nMehr: dahinter\r\n\r\n")},
        {"/404", "HTTP/1.1 404 Not Found\r\nContent-Length: 3\r\n\r\nweg"},
        {"/500", "HTTP/1.1 500 Kaputt\r\nContent-Length: 0\r\n\r\n"},
        {"/206", "HTTP/1.1 206 Teil\r\nContent-Length: 3\r\n\r\nabc"},
        {"/unsinn", "das ist kein HTTP\r\n\r\n"},
    };
    // A connection that stays open serves the next one too.
    for (const bool schliessen : {true, false}) {
        server.Schliessen = schliessen;
        EXPECT_EQ(netz.Fetch(server.Adresse("/gut")), bytes);
        EXPECT_EQ(netz.Fetch(server.Adresse("/leer")), "");
        EXPECT_EQ(netz.Fetch(server.Adresse("/stuecke")), "hallo!");
        EXPECT_EQ(netz.Fetch(server.Adresse("/anhang")), "da");
    }
    server.Schliessen = true;
    EXPECT_EQ(netz.Fetch(server.Adresse("/ohnelaenge")), "Inhalt");
    for (const char* const pfad : {"/404", "/500", "/206", "/unsinn"}) {
        EXPECT_EQ(netz.Fetch(server.Adresse(pfad)), std::nullopt) << pfad;
    }
    const int bisher = server.Anfragen;
    for (const char* const adresse :
         {"file:///etc/hostname", "ftp://127.0.0.1/x", "", "http://", "gut", "http:///gut",
          "http://127.0.0.1:1/zu", "data:text/plain,x"}) {
        EXPECT_EQ(netz.Fetch(adresse), std::nullopt) << adresse;
    }
    EXPECT_EQ(server.Anfragen, bisher);
}

// Whether a close or a reset follows, at each byte of it.
TEST(Netzabruf, NimmtNichtsAbgeschnittenes) {
    Server server;
    HttpFetcher netz;
    struct Fall {
        const char* Name;
        std::string Antwort;
        /// From where on a clean close ends it well: behind the last byte that means something.
        std::size_t Ganz;
    };
    const std::string laenge = Gut("nur wenig");
    const std::string stuecke = kStuecke + std::string("5\r\nhallo\r\n0\r\n\r\n");
    const std::string kopf = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
    for (const auto& [name, antwort, ganz] :
         {Fall{"length", laenge, laenge.size()}, Fall{"chunks", stuecke, stuecke.size() - 1},
          Fall{"neither", kopf + "Inhalt", kopf.size()}}) {
        // Where the toolkit's sockets know no reset, they close.
        for (const bool zurueck : kWindows ? std::vector{false} : std::vector{false, true}) {
            server.Zuruecksetzen = zurueck;
            for (std::size_t n = 0; n < (zurueck ? antwort.size() : ganz); ++n) {
                server.Antworten["/"] = antwort.substr(0, n);
                EXPECT_EQ(netz.Fetch(server.Adresse("/")), std::nullopt)
                    << name << ", " << n << " bytes, " << (zurueck ? "reset" : "closed");
            }
        }
    }
}

TEST(Netzabruf, FolgtHoechstensFuenfUmleitungen) {
    Server server;
    HttpFetcher netz;
    for (int i = 0; i < 7; ++i) {
        server.Antworten["/" + std::to_string(i)] =
            i == 6 ? Gut("da") : Umleitung(server.Adresse("/" + std::to_string(i + 1)));
    }
    server.Antworten["/kreis"] = Umleitung("/kreis");
    server.Antworten["/datei"] = Umleitung("file:///etc/hostname");
    server.Antworten["/ftp"] = Umleitung("ftp://127.0.0.1/x");
    EXPECT_EQ(netz.Fetch(server.Adresse("/1")), "da");
    EXPECT_EQ(netz.Fetch(server.Adresse("/0")), std::nullopt);
    for (const char* const pfad : {"/kreis", "/datei", "/ftp"}) {
        EXPECT_EQ(netz.Fetch(server.Adresse(pfad)), std::nullopt) << pfad;
    }
}

TEST(Netzabruf, HaeltGrenzenVonZeitUndGroesseEin) {
    Server server;
    HttpFetcher kleiner({.bytes = 1000});
    server.Antworten["/genau"] = Gut(std::string(1000, 'x'));
    server.Antworten["/mehr"] = Gut(std::string(1001, 'x'));
    EXPECT_EQ(kleiner.Fetch(server.Adresse("/genau")), std::string(1000, 'x'));
    EXPECT_EQ(kleiner.Fetch(server.Adresse("/mehr")), std::nullopt);
    EXPECT_EQ(kleiner.Fetch(server.Adresse("/endlos")), std::nullopt);
    HttpFetcher kurzer({.duration = std::chrono::milliseconds(100)});
    EXPECT_EQ(kurzer.Fetch(server.Adresse("/stumm")), std::nullopt);
    // Bytes that keep coming don't make it longer.
    EXPECT_EQ(kurzer.Fetch(server.Adresse("/tropfen")), std::nullopt);
}

TEST(Netzabruf, EingabenGehenInsLeereUndDasEndeIstSauber) {
    Server server;
    HttpFetcher netz;
    QPushButton knopf(QStringLiteral("Knopf"));
    int gedrueckt = 0;
    QObject::connect(&knopf, &QPushButton::clicked, [&] { ++gedrueckt; });
    QLineEdit eingabe;
    knopf.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&knopf));
    int takte = 0;
    QTimer takt;
    QObject::connect(&takt, &QTimer::timeout, [&] {
        ++takte;
        QTest::mouseClick(knopf.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
        QTest::keyClick(knopf.windowHandle(), Qt::Key_Space);
        QInputMethodEvent silbe;
        silbe.setCommitString(QStringLiteral("é"));
        QCoreApplication::sendEvent(&eingabe, &silbe);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        if (takte >= 5) {
            netz.Abort();
        }
    });
    takt.start(10);
    EXPECT_EQ(netz.Fetch(server.Adresse("/stumm")), std::nullopt);
    takt.stop();
    QCoreApplication::processEvents();
    EXPECT_GE(takte, 5) << "timers go on";
    EXPECT_EQ(gedrueckt, 0);
    EXPECT_EQ(eingabe.text(), QString());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QTest::mouseClick(knopf.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(gedrueckt, 1);
    netz.Abort();
}

}  // namespace
}  // namespace tarvelin
