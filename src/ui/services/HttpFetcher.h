// Fetches files by HTTP with libcurl.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Only http and https, with at most five redirects. A response counts only with status 200, within
/// the limits, and if it is complete: all headers, and a body of the announced length, or up to the
/// last chunk, or, if neither is announced, up to a clean close. A fetch during another one fails.
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
    /// Keeps connections alive between two fetches.
    class Connections;

    Limits m_limits;
    std::unique_ptr<Connections> m_connections;
    bool m_aborted = false;
    bool m_running = false;
};

}  // namespace tarvelin
