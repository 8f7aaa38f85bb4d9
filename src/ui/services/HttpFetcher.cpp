// Fetches that keep processing events while they wait.
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

/// While it exists, clicks and keys are ignored and the cursor shows that the program is busy.
/// Painting, timers and closing a window go on, and a modal box still gets its answer.
class InputLock : public QObject {
  public:
    InputLock() {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        QCoreApplication::instance()->installEventFilter(this);
    }
    InputLock(const InputLock&) = delete;
    InputLock& operator=(const InputLock&) = delete;
    ~InputLock() override {
        // Drops the clicks that are still queued.
        QCoreApplication::processEvents();
        QApplication::restoreOverrideCursor();
    }

  protected:
    bool eventFilter(QObject* /*target*/, QEvent* event) override {
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

/// The encoded address; empty if it is no http or https address.
std::string WebAddress(const std::string& address) {
    const QUrl url(ToQString(address));
    const bool good =
        url.isValid() && !url.host().isEmpty() &&
        (url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https"));
    return good ? url.toEncoded().toStdString() : std::string();
}

/// What has arrived of a response.
struct Response {
    std::size_t maxBytes = 0;
    std::string bytes;
    /// The blank line after the headers has come. Without it, a connection that closed among the
    /// headers would look like an empty response.
    bool headerComplete = false;
};

// Returning fewer bytes than came ends the fetch.
std::size_t TakeBytes(const char* bytes, std::size_t /*one*/, std::size_t count, void* target) {
    auto& response = *static_cast<Response*>(target);
    if (count > response.maxBytes - response.bytes.size()) {
        return 0;
    }
    response.bytes.append(bytes, count);
    return count;
}

// Redirects and proxies send headers of their own before those of the response, and a chunked body
// can be followed by trailers.
std::size_t TakeHeaderLine(const char* bytes, std::size_t /*one*/, std::size_t count,
                           void* target) {
    auto& response = *static_cast<Response*>(target);
    const std::string_view line(bytes, count);
    if (line.starts_with("HTTP/")) {
        response.headerComplete = false;
        response.bytes.clear();
    } else if (line == "\r\n" || line == "\n") {
        response.headerComplete = true;
    }
    return count;
}

using Request = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

Request NewRequest(const std::string& address, std::chrono::milliseconds duration,
                   Response& response) {
    constexpr long kMaxRedirects = 5;
    Request request(curl_easy_init(), &curl_easy_cleanup);
    const auto set = [&request](CURLoption option, auto value) {
        curl_easy_setopt(request.get(), option, value);
    };
    set(CURLOPT_URL, address.c_str());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    set(CURLOPT_FOLLOWLOCATION, 1L);
    set(CURLOPT_MAXREDIRS, kMaxRedirects);
    set(CURLOPT_TIMEOUT_MS, static_cast<long>(duration.count()));
    set(CURLOPT_USERAGENT, "Tarvelin");
    set(CURLOPT_ACCEPT_ENCODING, "identity");
    set(CURLOPT_WRITEFUNCTION, &TakeBytes);
    set(CURLOPT_WRITEDATA, static_cast<void*>(&response));
    set(CURLOPT_HEADERFUNCTION, &TakeHeaderLine);
    set(CURLOPT_HEADERDATA, static_cast<void*>(&response));
    set(CURLOPT_NOSIGNAL, 1L);
    // As browsers do, go on if a revocation list is out of reach.
    set(CURLOPT_SSL_OPTIONS, static_cast<long>(CURLSSLOPT_REVOKE_BEST_EFFORT));
    // A name server that never answers must not delay the end of the program.
    set(CURLOPT_QUICK_EXIT, 1L);
    return request;
}

bool IsOk(CURL* request) {
    constexpr long kOk = 200;
    long status = 0;
    return curl_easy_getinfo(request, CURLINFO_RESPONSE_CODE, &status) == CURLE_OK && status == kOk;
}

}  // namespace

/// Global set-up of libcurl.
class NetworkLibrary {
  public:
    NetworkLibrary() { curl_global_init(CURL_GLOBAL_DEFAULT); }
    NetworkLibrary(const NetworkLibrary&) = delete;
    NetworkLibrary& operator=(const NetworkLibrary&) = delete;
    ~NetworkLibrary() { curl_global_cleanup(); }
};

class HttpFetcher::Connections {
  public:
    /// The result of the fetch; nothing if `keepGoing` ended it. Events are processed meanwhile.
    template <class KeepGoing>
    std::optional<CURLcode> Perform(CURL* request, KeepGoing keepGoing) {
        constexpr int kSlice = 10;
        curl_multi_add_handle(m_all.get(), request);
        std::optional<CURLcode> result;
        int running = 0;
        while (curl_multi_perform(m_all.get(), &running) == CURLM_OK && running > 0) {
            QCoreApplication::processEvents();
            if (!keepGoing()) {
                break;
            }
            curl_multi_poll(m_all.get(), nullptr, 0, kSlice, nullptr);
        }
        int remaining = 0;
        const CURLMsg* const message = curl_multi_info_read(m_all.get(), &remaining);
        if (message != nullptr && message->easy_handle == request) {
            result = message->data.result;
        }
        curl_multi_remove_handle(m_all.get(), request);
        return result;
    }

  private:
    NetworkLibrary m_library;
    std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> m_all{curl_multi_init(),
                                                                &curl_multi_cleanup};
};

HttpFetcher::HttpFetcher(Limits limits)
    : m_limits(limits), m_connections(std::make_unique<Connections>()) {}

HttpFetcher::~HttpFetcher() = default;

std::optional<std::string> HttpFetcher::Fetch(const std::string& address) {
    const std::string url = WebAddress(address);
    if (url.empty() || m_running) {
        return std::nullopt;
    }
    const QScopedValueRollback running(m_running, true);
    const InputLock inputLock;
    Response response{.maxBytes = m_limits.bytes, .bytes = {}};
    const Request request = NewRequest(url, m_limits.duration, response);
    m_aborted = false;
    const auto result = m_connections->Perform(request.get(), [this] { return !m_aborted; });
    const bool whole = result == CURLE_OK && response.headerComplete && IsOk(request.get());
    return whole ? std::optional(std::move(response.bytes)) : std::nullopt;
}

void HttpFetcher::ProcessEvents() {
    const InputLock inputLock;
    QCoreApplication::processEvents();
}

}  // namespace tarvelin
