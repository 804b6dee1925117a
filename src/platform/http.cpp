#include "platform/http.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkRequest>

namespace pinmora {
namespace {

bool isLoopback(const QString &host) {
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

} // namespace

std::optional<QUrl> webUrl(const QByteArray &address) {
    const QUrl url = QUrl::fromEncoded(address);
    const bool isHttp =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return url.isValid() && isHttp && !url.host().isEmpty() ? std::optional(url) : std::nullopt;
}

void makePlain(QNetworkRequest &request) {
    request.setRawHeader("User-Agent", "Pinmora");
    request.setRawHeader("Accept-Encoding", "identity");
    using enum QNetworkRequest::Attribute;
    request.setAttribute(CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(AuthenticationReuseAttribute, QNetworkRequest::Manual);
}

void chooseProxy(QNetworkAccessManager &network, const QUrl &url) {
    network.setProxy(isLoopback(url.host()) ? QNetworkProxy::NoProxy : QNetworkProxy::DefaultProxy);
}

bool isAnswered(const QNetworkReply &reply) {
    constexpr int firstOfErrors = 400;
    const QNetworkReply::NetworkError error = reply.error();
    return error == QNetworkReply::NoError ||
           (error > QNetworkReply::UnknownNetworkError &&
            reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= firstOfErrors);
}

void ReplyCanceller::operator()(QNetworkReply *reply) const {
    reply->abort();
    reply->deleteLater();
}

} // namespace pinmora
