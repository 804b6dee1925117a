#pragma once

#include "platform/http.h"

#include <QNetworkAccessManager>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace pinmora {

/// What is asked of a server.
struct UrlRequest {
    std::string address;
    bool ignoresCachedData = false; ///< also that of servers in between
    /// How long nothing may arrive before the request has failed.
    std::chrono::milliseconds timeout{60'000};
};

struct UrlResponse {
    int statusCode = 0;
    std::int64_t contentLength = 0; ///< bytes by the server's word; 0 where it says nothing
};

/// Hears what becomes of a request, on the main thread: one response, then the body in pieces, then
/// its end. A failure is the last that is heard. May cancel the connection, not destroy it.
class UrlConnectionDelegate {
public:
    virtual ~UrlConnectionDelegate() = default;

    virtual void didReceiveResponse(const UrlResponse &response) = 0;
    virtual void didReceiveData(std::string_view bytes) = 0;
    /// With a sentence for the person.
    virtual void didFailWithError(const std::string &localizedDescription) = 0;
    /// Whatever the status was.
    virtual void connectionDidFinishLoading() = 0;
};

/// A request that is under way. It follows redirects to addresses on the web, but not from https
/// to http; all others make it fail.
class UrlConnection {
public:
    /// Nothing for an address that is not on the web. The delegate must outlive the connection, and
    /// hears nothing before the event loop turns.
    static std::unique_ptr<UrlConnection> start(const UrlRequest &request,
                                                UrlConnectionDelegate &delegate);
    ~UrlConnection();
    UrlConnection(const UrlConnection &) = delete;
    UrlConnection &operator=(const UrlConnection &) = delete;

    /// Nothing is heard any more.
    void cancel();
    bool isUnderWay() const { return reply_ != nullptr; }

private:
    UrlConnection(const QUrl &url, const UrlRequest &request, UrlConnectionDelegate &delegate);
    void hear();
    void respond();
    void receive();
    void finish();
    void fail(const QString &why);

    UrlConnectionDelegate &delegate_;
    QNetworkAccessManager network_;
    QTimer patience_;
    bool hasResponded_ = false;
    OwnedReply reply_; ///< null once it is over
};

} // namespace pinmora
