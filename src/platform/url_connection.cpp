#include "platform/url_connection.h"

#include <QCoreApplication>
#include <QNetworkRequest>

#include <algorithm>

namespace pinmora {

std::unique_ptr<UrlConnection> UrlConnection::start(const UrlRequest &request,
                                                    UrlConnectionDelegate &delegate) {
    const auto url = webUrl(QByteArray::fromStdString(request.address));
    return url ? std::unique_ptr<UrlConnection>(new UrlConnection(*url, request, delegate))
               : nullptr;
}

UrlConnection::UrlConnection(const QUrl &url, const UrlRequest &request,
                             UrlConnectionDelegate &delegate)
    : delegate_(delegate) {
    chooseProxy(network_, url);
    QNetworkRequest asked(url);
    makePlain(asked);
    using enum QNetworkRequest::Attribute;
    asked.setAttribute(RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    if (request.ignoresCachedData) {
        asked.setAttribute(CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    }
    patience_.setSingleShot(true);
    patience_.setInterval(request.timeout);
    reply_.reset(network_.get(asked));
    hear();
    patience_.start();
}

UrlConnection::~UrlConnection() {
    cancel();
}

void UrlConnection::cancel() {
    patience_.stop();
    reply_.reset();
}

/// Of the timer's life, which ends after the reply's.
void UrlConnection::hear() {
    const QNetworkReply *const reply = reply_.get();
    const auto restart = [this] {
        if (reply_) {
            patience_.start();
        }
    };
    QObject::connect(reply, &QNetworkReply::redirected, &patience_, restart);
    QObject::connect(reply, &QNetworkReply::downloadProgress, &patience_, restart);
    QObject::connect(reply, &QNetworkReply::readyRead, &patience_, [this] { receive(); });
    QObject::connect(reply, &QNetworkReply::finished, &patience_, [this] { finish(); });
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] {
        fail(QCoreApplication::translate("platform", "The request timed out."));
    });
}

/// Redirects that are followed have no body that could be read, and no end.
void UrlConnection::respond() {
    if (!hasResponded_) {
        hasResponded_ = true;
        delegate_.didReceiveResponse(
            {.statusCode = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
             .contentLength =
                 std::max<std::int64_t>(0, reply_->rawHeader("Content-Length").toLongLong())});
    }
}

void UrlConnection::receive() {
    if (!reply_) {
        return; // it has been cancelled
    }
    patience_.start();
    respond();
    if (reply_) {
        const QByteArray bytes = reply_->readAll();
        delegate_.didReceiveData({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    }
}

void UrlConnection::finish() {
    if (!reply_) {
        return;
    }
    if (!isAnswered(*reply_)) {
        fail(reply_->errorString());
        return;
    }
    respond();
    if (reply_) {
        cancel();
        delegate_.connectionDidFinishLoading();
    }
}

void UrlConnection::fail(const QString &why) {
    cancel();
    delegate_.didFailWithError(why.toStdString());
}

} // namespace pinmora
