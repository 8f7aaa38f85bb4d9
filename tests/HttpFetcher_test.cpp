// Fetches from a local server that misbehaves in every way.
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
                Answer(*client, path);
            });
        });
    }

    std::string Address(const std::string& path) const {
        return "http://127.0.0.1:" + std::to_string(m_server.serverPort()) + path;
    }

    std::map<std::string, std::string> responses;
    /// Whether a response is the connection's last.
    bool close = true;
    /// How many bytes follow every 20 ms.
    int drip = 0;

  private:
    void Answer(QTcpSocket& client, const std::string& path) {
        client.write(QByteArray::fromStdString(responses[path]));
        if (drip > 0) {
            auto* const timer = new QTimer(&client);
            QObject::connect(timer, &QTimer::timeout, &client,
                             [this, &client] { client.write(QByteArray(drip, 'x')); });
            timer->start(20);
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

constexpr const char* kPieces = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

TEST(HttpFetcher, FetchesOnlyCompleteFiles) {
    Server server;
    HttpFetcher fetcher;
    const std::string bytes("a\0b\xff\r\n", 6);
    const std::map<std::string, std::string> good{
        {Good(bytes), bytes},
        {Good(""), ""},
        {kPieces + std::string("5\r\nhallo\r\n1\r\n!\r\n0\r\n\r\n"), "hallo!"},
        {kPieces + std::string("2\r\nda\r\n0\r\nMehr: dahinter\r\n\r\n"), "da"},
        {"HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nInhalt", "Inhalt"}};
    // With and without reuse of the connection.
    for (const bool close : {true, false}) {
        for (const auto& [response, content] : good) {
            server.close = close || content == "Inhalt";
            server.responses["/"] = response;
            EXPECT_EQ(fetcher.Fetch(server.Address("/")), content) << response;
        }
    }
    server.close = true;
    for (const char* const response :
         {"HTTP/1.1 404 Not Found\r\nContent-Length: 3\r\n\r\nweg",
          "HTTP/1.1 500 Kaputt\r\nContent-Length: 0\r\n\r\n",
          "HTTP/1.1 206 Teil\r\nContent-Length: 3\r\n\r\nabc", "das ist kein HTTP\r\n\r\n"}) {
        server.responses["/"] = response;
        EXPECT_EQ(fetcher.Fetch(server.Address("/")), std::nullopt) << response;
    }
    for (const char* const address :
         {"file:///etc/hostname", "ftp://127.0.0.1/x", "", "http://", "gut", "http:///gut",
          "http://127.0.0.1:1/zu", "data:text/plain,x"}) {
        EXPECT_EQ(fetcher.Fetch(address), std::nullopt) << address;
    }
}

// A response that ends after any of its bytes is refused.
TEST(HttpFetcher, RefusesWhatIsCutOff) {
    Server server;
    HttpFetcher fetcher;
    const std::string length = Good("nur wenig");
    const std::string pieces = kPieces + std::string("5\r\nhallo\r\n0\r\n\r\n");
    const std::string header = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
    // From which number of bytes on a close is a proper end.
    for (const auto& [response, whole] :
         {std::pair(length, length.size()), std::pair(pieces, pieces.size() - 1),
          std::pair(header + "Inhalt", header.size())}) {
        for (std::size_t n = 0; n < whole; ++n) {
            server.responses["/"] = response.substr(0, n);
            EXPECT_EQ(fetcher.Fetch(server.Address("/")), std::nullopt) << response << n;
        }
    }
}

TEST(HttpFetcher, FollowsFiveRedirectsAtMost) {
    Server server;
    HttpFetcher fetcher;
    const auto redirect = [&](const std::string& from, const std::string& target) {
        server.responses[from] = "HTTP/1.1 302 Found\r\nLocation: " + target +
                                 "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";
    };
    for (int i = 0; i < 6; ++i) {
        redirect("/" + std::to_string(i), server.Address("/" + std::to_string(i + 1)));
    }
    server.responses["/6"] = Good("da");
    EXPECT_EQ(fetcher.Fetch(server.Address("/1")), "da");
    EXPECT_EQ(fetcher.Fetch(server.Address("/0")), std::nullopt);
    for (const char* const target : {"/kreis", "file:///etc/hostname", "ftp://127.0.0.1/x"}) {
        redirect("/kreis", target);
        EXPECT_EQ(fetcher.Fetch(server.Address("/kreis")), std::nullopt) << target;
    }
}

TEST(HttpFetcher, KeepsLimitsOfTimeAndSize) {
    Server server;
    HttpFetcher smallFetcher({.bytes = 1000});
    server.responses["/genau"] = Good(std::string(1000, 'x'));
    server.responses["/mehr"] = Good(std::string(1001, 'x'));
    EXPECT_EQ(smallFetcher.Fetch(server.Address("/genau")), std::string(1000, 'x'));
    EXPECT_EQ(smallFetcher.Fetch(server.Address("/mehr")), std::nullopt);
    HttpFetcher shortFetcher({.duration = std::chrono::milliseconds(100)});
    server.close = false;
    EXPECT_EQ(shortFetcher.Fetch(server.Address("/stumm")), std::nullopt);
    // A trickle of bytes doesn't extend the limit.
    server.drip = 1;
    server.responses["/tropfen"] = "HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n";
    EXPECT_EQ(shortFetcher.Fetch(server.Address("/tropfen")), std::nullopt);
    server.drip = 65536;
    server.responses["/endlos"] = "HTTP/1.1 200 OK\r\n\r\n";
    EXPECT_EQ(smallFetcher.Fetch(server.Address("/endlos")), std::nullopt);
}

TEST(HttpFetcher, SwallowsInputWhileItWaits) {
    Server server;
    server.close = false;
    HttpFetcher fetcher;
    QPushButton button(QStringLiteral("Knopf"));
    int pressed = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++pressed; });
    const auto click = [&] {
        QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    };
    QLineEdit input;
    button.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&button));
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        click();
        QTest::keyClick(button.windowHandle(), Qt::Key_Space);
        QInputMethodEvent syllable;
        syllable.setCommitString(QStringLiteral("é"));
        QCoreApplication::sendEvent(&input, &syllable);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        if (++ticks == 5) {
            fetcher.Abort();
        }
    });
    timer.start(10);
    EXPECT_EQ(fetcher.Fetch(server.Address("/stumm")), std::nullopt);
    timer.stop();
    QCoreApplication::processEvents();
    EXPECT_EQ(pressed, 0);
    EXPECT_EQ(input.text(), QString());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    click();
    EXPECT_EQ(pressed, 1);
}

}  // namespace
}  // namespace tarvelin
