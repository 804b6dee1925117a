#include "places/place_request.h"

#include "places/soap_envelope.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <algorithm>
#include <utility>

namespace pinmora {

namespace {

/// Nothing in it can end a header's line.
bool isFit(std::string_view value) {
    return std::none_of(value.begin(), value.end(),
                        [](char c) { return (c >= 0 && c <= ' ') || c == '\x7f'; });
}

QNetworkRequest requestFor(const QUrl &url, const PlaceService &service) {
    QNetworkRequest request(url);
    request.setRawHeader("Content-Type", "text/xml; charset=utf-8");
    request.setRawHeader("Soapaction", QByteArray::fromStdString(placeAction(service.nameSpace)));
    if (!service.host.empty()) {
        request.setRawHeader("Host", QByteArray::fromStdString(service.host));
    }
    request.setRawHeader("User-Agent", "Pinmora");
    request.setRawHeader("Accept-Encoding", "identity"); // what is counted is what is read
    using enum QNetworkRequest::Attribute;
    request.setAttribute(RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(AuthenticationReuseAttribute, QNetworkRequest::Manual);
    return request;
}

/// An answer of any status is one, if it is whole. Some statuses show as errors of the proxy or of
/// the protocol.
bool isAnswer(const QNetworkReply &reply) {
    constexpr int firstOfErrors = 400;
    const QNetworkReply::NetworkError error = reply.error();
    return error == QNetworkReply::NoError ||
           (error > QNetworkReply::UnknownNetworkError &&
            reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= firstOfErrors);
}

} // namespace

std::optional<QUrl> placeUrl(const PlaceService &service) {
    QByteArray address = QByteArray::fromStdString(service.address);
    while (address.endsWith('/')) {
        address.chop(1);
    }
    QUrl url = QUrl::fromEncoded(address + "/TerraService2.asmx");
    url.setUserInfo(QString());
    const bool isHttp =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    const bool canBeAsked = url.isValid() && isHttp && !url.host().isEmpty() &&
                            isFit(service.host) && isFit(service.nameSpace);
    return canBeAsked ? std::optional(url) : std::nullopt;
}

PlaceRequest::PlaceRequest(QNetworkAccessManager &network, const QUrl &url,
                           const PlaceService &service, const PositionTexts &position,
                           const PlaceLimits &limits, Ended ended)
    : mostBytes_(limits.bytes), ended_(std::move(ended)),
      reply_(network.post(requestFor(url, service),
                          QByteArray::fromStdString(placeEnvelope(service.nameSpace, position)))) {
    // Of the timer's life, which ends before the reply's does.
    QObject::connect(reply_.get(), &QNetworkReply::readyRead, &limit_,
                     [this] { didReceiveData(); });
    QObject::connect(reply_.get(), &QNetworkReply::finished, &limit_,
                     [this] { connectionDidFinishLoading(); });
    QObject::connect(&limit_, &QTimer::timeout, &limit_, [this] { end({}); });
    limit_.setSingleShot(true);
    limit_.start(limits.time);
}

PlaceRequest::~PlaceRequest() = default;

void PlaceRequest::Canceller::operator()(QNetworkReply *reply) const {
    reply->abort();
    reply->deleteLater();
}

void PlaceRequest::didReceiveData() {
    if (!ended_) {
        return;
    }
    if (receivedData_.size() + static_cast<std::size_t>(reply_->bytesAvailable()) > mostBytes_) {
        end({.isAnswered = true});
    } else {
        receivedData_ += reply_->readAll().toStdString();
    }
}

void PlaceRequest::connectionDidFinishLoading() {
    if (!ended_) {
        return; // it has been broken off
    }
    PlaceOutcome outcome{.isAnswered = isAnswer(*reply_)};
    if (outcome.isAnswered) {
        outcome.answer = readPlaceAnswer(receivedData_);
    }
    if (outcome.answer) {
        outcome.answer->distance =
            readPlaceDistance(reply_->rawHeader("Pinmora-Place-Distance").toStdString());
    }
    end(outcome);
}

void PlaceRequest::end(const PlaceOutcome &outcome) {
    const Ended ended = std::exchange(ended_, nullptr);
    limit_.stop();
    receivedData_.clear();
    reply_.reset();
    ended(outcome);
}

} // namespace pinmora
