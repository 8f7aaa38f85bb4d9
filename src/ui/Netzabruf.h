// The real fetch of files by HTTP.
#pragma once

#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <chrono>

#include "ui/Umgebung.h"

namespace tarvelin {

/// Only http and https are asked, at most five redirects followed, to these two only. An answer
/// counts with the status 200 alone, whole, and within the limits.
class Netzabruf final : public Abruf {
  public:
    struct Grenzen {
        /// From the request to the last byte.
        std::chrono::milliseconds Dauer = std::chrono::seconds(60);
        qint64 Bytes = qint64{4} << 20U;
    };

    explicit Netzabruf(Grenzen grenzen);
    Netzabruf() : Netzabruf(Grenzen{}) {}

    [[nodiscard]] std::optional<std::string> Hole(const std::string& adresse) override;
    void Atme() override;
    void BrichAb() override;

  private:
    struct Antwort {
        std::optional<std::string> Bytes;
        /// Where the server sends us instead; empty if nowhere.
        QUrl Weiter;
    };
    [[nodiscard]] Antwort Frage(const QUrl& url, const QDeadlineTimer& frist);

    Grenzen m_grenzen;
    QNetworkAccessManager m_netz;
    QPointer<QNetworkReply> m_antwort;
};

}  // namespace tarvelin
