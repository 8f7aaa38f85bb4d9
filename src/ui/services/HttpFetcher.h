// The real fetch of files by HTTP.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Only http and https are asked, at most five redirects followed, to these two only. An answer
/// counts with the status 200 alone, within the limits, and whole: with its head to the last line
/// and its body as long as it was announced, or to the end of its last chunk; a body that announces
/// neither, to a clean close of the connection. One at a time: nothing is fetched during a fetch.
class Netzabruf final : public Abruf {
  public:
    struct Grenzen {
        /// From the request to the last byte, redirects included.
        std::chrono::milliseconds Dauer = std::chrono::seconds(60);
        std::size_t Bytes = std::size_t{4} << 20U;
    };

    explicit Netzabruf(Grenzen grenzen);
    Netzabruf() : Netzabruf(Grenzen{}) {}
    ~Netzabruf() override;

    [[nodiscard]] std::optional<std::string> Hole(const std::string& adresse) override;
    void Atme() override;
    void BrichAb() override { m_abgebrochen = true; }

  private:
    /// Holds the connections that servers keep open between two fetches.
    class Verbindungen;

    Grenzen m_grenzen;
    std::unique_ptr<Verbindungen> m_verbindungen;
    bool m_abgebrochen = false;
    bool m_laeuft = false;
};

}  // namespace tarvelin
