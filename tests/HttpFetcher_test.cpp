// Fetches from a local server that misbehaves in every way.
#ifdef _WIN32
#include <winsock2.h>
using SocketHandle = SOCKET;
#else
#include <sys/socket.h>
using SocketHandle = int;
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

/// Answers each request with the response that `responses` has for its path.
class Server {
  public:
    Server() {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, [this] {
            QTcpSocket* const client = m_server.nextPendingConnection();
            QObject::connect(client, &QTcpSocket::readyRead, client, [this, client] {
                const QByteArray request = client->readAll();
                const std::string path = request.split(' ').value(1).toStdString();
                ++requestLines;
                Answer(*client, path);
            });
        });
    }

    std::string Address(const std::string& path) const {
        return "http://127.0.0.1:" + std::to_string(m_server.serverPort()) + path;
    }

    std::map<std::string, std::string> responses;
    int requestLines = 0;
    /// What follows a response: a close, a reset, or neither.
    bool close = true;
    bool reset = false;

  private:
    void Answer(QTcpSocket& client, const std::string& path) {
        if (path == "/endlos") {
            client.write("HTTP/1.1 200 OK\r\n\r\n");
            QObject::connect(&client, &QTcpSocket::bytesWritten, &client,
                             [&client] { client.write(QByteArray(65536, 'x')); });
            return;
        }
        if (path == "/stumm") {
            return;
        }
        if (path == "/tropfen") {
            client.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
            auto* const timer = new QTimer(&client);
            QObject::connect(timer, &QTimer::timeout, &client, [&client] { client.write("x"); });
            timer->start(20);
            return;
        }
        client.write(QByteArray::fromStdString(responses[path]));
        if (reset) {
            client.flush();
            const linger hard{.l_onoff = 1, .l_linger = 0};
            ::setsockopt(static_cast<SocketHandle>(client.socketDescriptor()), SOL_SOCKET,
                         SO_LINGER, reinterpret_cast<const char*>(&hard), sizeof hard);
            client.abort();
        } else if (close) {
            client.disconnectFromHost();
        }
    }

    QTcpServer m_server;
};

std::string Good(const std::string& content) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(content.size()) + "\r\n\r\n" +
           content;
}

std::string Redirect(const std::string& target) {
    return "HTTP/1.1 302 Found\r\nLocation: " + target +
           "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";
}

constexpr const char* kPieces = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

TEST(HttpFetcher, FetchesOnlyCompleteFiles) {
    Server server;
    HttpFetcher fetcher;
    const std::string bytes("a\0b\xff\r\n", 6);
    server.responses = {
        {"/gut", Good(bytes)},
        {"/leer", Good("")},
        {"/ohnelaenge", "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nInhalt"},
        {"/stuecke", kPieces + std::string("5\r\nhallo\r\n1\r\n!\r\n0\r\n\r\n")},
        {"/anhang", kPieces + std::string("2\r\nda\r\n0\r\nMehr: dahinter\r\n\r\n")},
        {"/404", "HTTP/1.1 404 Not Found\r\nContent-Length: 3\r\n\r\nweg"},
        {"/500", "HTTP/1.1 500 Kaputt\r\nContent-Length: 0\r\n\r\n"},
        {"/206", "HTTP/1.1 206 Teil\r\nContent-Length: 3\r\n\r\nabc"},
        {"/unsinn", "das ist kein HTTP\r\n\r\n"},
    };
    // With and without reuse of the connection.
    for (const bool close : {true, false}) {
        server.close = close;
        EXPECT_EQ(fetcher.Fetch(server.Address("/gut")), bytes);
        EXPECT_EQ(fetcher.Fetch(server.Address("/leer")), "");
        EXPECT_EQ(fetcher.Fetch(server.Address("/stuecke")), "hallo!");
        EXPECT_EQ(fetcher.Fetch(server.Address("/anhang")), "da");
    }
    server.close = true;
    EXPECT_EQ(fetcher.Fetch(server.Address("/ohnelaenge")), "Inhalt");
    for (const char* const path : {"/404", "/500", "/206", "/unsinn"}) {
        EXPECT_EQ(fetcher.Fetch(server.Address(path)), std::nullopt) << path;
    }
    const int previous = server.requestLines;
    for (const char* const address :
         {"file:///etc/hostname", "ftp://127.0.0.1/x", "", "http://", "gut", "http:///gut",
          "http://127.0.0.1:1/zu", "data:text/plain,x"}) {
        EXPECT_EQ(fetcher.Fetch(address), std::nullopt) << address;
    }
    EXPECT_EQ(server.requestLines, previous);
}

// A response that ends after any of its bytes, by a close or a reset, is refused.
TEST(HttpFetcher, RefusesWhatIsCutOff) {
    Server server;
    HttpFetcher fetcher;
    struct Case {
        const char* name;
        std::string response;
        /// The number of bytes from which on a close is a proper end.
        std::size_t whole;
    };
    const std::string length = Good("nur wenig");
    const std::string pieces = kPieces + std::string("5\r\nhallo\r\n0\r\n\r\n");
    const std::string header = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
    for (const auto& [name, answer, whole] :
         {Case{"length", length, length.size()}, Case{"chunks", pieces, pieces.size() - 1},
          Case{"neither", header + "Inhalt", header.size()}}) {
        // On Windows the toolkit's sockets close instead of resetting.
        for (const bool reset : kWindows ? std::vector{false} : std::vector{false, true}) {
            server.reset = reset;
            for (std::size_t n = 0; n < (reset ? answer.size() : whole); ++n) {
                server.responses["/"] = answer.substr(0, n);
                EXPECT_EQ(fetcher.Fetch(server.Address("/")), std::nullopt)
                    << name << ", " << n << " bytes, " << (reset ? "reset" : "closed");
            }
        }
    }
}

TEST(HttpFetcher, FollowsFiveRedirectsAtMost) {
    Server server;
    HttpFetcher fetcher;
    for (int i = 0; i < 7; ++i) {
        server.responses["/" + std::to_string(i)] =
            i == 6 ? Good("da") : Redirect(server.Address("/" + std::to_string(i + 1)));
    }
    server.responses["/kreis"] = Redirect("/kreis");
    server.responses["/datei"] = Redirect("file:///etc/hostname");
    server.responses["/ftp"] = Redirect("ftp://127.0.0.1/x");
    EXPECT_EQ(fetcher.Fetch(server.Address("/1")), "da");
    EXPECT_EQ(fetcher.Fetch(server.Address("/0")), std::nullopt);
    for (const char* const path : {"/kreis", "/datei", "/ftp"}) {
        EXPECT_EQ(fetcher.Fetch(server.Address(path)), std::nullopt) << path;
    }
}

TEST(HttpFetcher, KeepsLimitsOfTimeAndSize) {
    Server server;
    HttpFetcher smallFetcher({.bytes = 1000});
    server.responses["/genau"] = Good(std::string(1000, 'x'));
    server.responses["/mehr"] = Good(std::string(1001, 'x'));
    EXPECT_EQ(smallFetcher.Fetch(server.Address("/genau")), std::string(1000, 'x'));
    EXPECT_EQ(smallFetcher.Fetch(server.Address("/mehr")), std::nullopt);
    EXPECT_EQ(smallFetcher.Fetch(server.Address("/endlos")), std::nullopt);
    HttpFetcher shortFetcher({.duration = std::chrono::milliseconds(100)});
    EXPECT_EQ(shortFetcher.Fetch(server.Address("/stumm")), std::nullopt);
    // A trickle of bytes doesn't extend the limit.
    EXPECT_EQ(shortFetcher.Fetch(server.Address("/tropfen")), std::nullopt);
}

TEST(HttpFetcher, SwallowsInputWhileItWaits) {
    Server server;
    HttpFetcher fetcher;
    QPushButton button(QStringLiteral("Knopf"));
    int pressed = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++pressed; });
    QLineEdit input;
    button.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&button));
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        ++ticks;
        QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
        QTest::keyClick(button.windowHandle(), Qt::Key_Space);
        QInputMethodEvent syllable;
        syllable.setCommitString(QStringLiteral("é"));
        QCoreApplication::sendEvent(&input, &syllable);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        if (ticks >= 5) {
            fetcher.Abort();
        }
    });
    timer.start(10);
    EXPECT_EQ(fetcher.Fetch(server.Address("/stumm")), std::nullopt);
    timer.stop();
    QCoreApplication::processEvents();
    EXPECT_GE(ticks, 5) << "timers go on";
    EXPECT_EQ(pressed, 0);
    EXPECT_EQ(input.text(), QString());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(pressed, 1);
    fetcher.Abort();
}

}  // namespace
}  // namespace tarvelin
