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
class HttpFetcher final : public Fetcher {
  public:
    struct Limits {
        /// From the request to the last byte, redirects included.
        std::chrono::milliseconds duration = std::chrono::seconds(60);
        std::size_t bytes = std::size_t{4} << 20U;
    };

    explicit HttpFetcher(Limits limits);
    HttpFetcher() : HttpFetcher(Limits{}) {}
    ~HttpFetcher() override;

    [[nodiscard]] std::optional<std::string> Fetch(const std::string& address) override;
    void ProcessEvents() override;
    void Abort() override { m_aborted = true; }

  private:
    /// Holds the connections that servers keep open between two fetches.
    class Connections;

    Limits m_limits;
    std::unique_ptr<Connections> m_connections;
    bool m_aborted = false;
    bool m_running = false;
};

}  // namespace tarvelin
