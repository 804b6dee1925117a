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
    makePlain(request);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    return request;
}

} // namespace

std::optional<QUrl> placeUrl(const PlaceService &service) {
    QByteArray address = QByteArray::fromStdString(service.address);
    while (address.endsWith('/')) {
        address.chop(1);
    }
    std::optional<QUrl> url = webUrl(address + "/TerraService2.asmx");
    if (!url || !isFit(service.host) || !isFit(service.nameSpace)) {
        return std::nullopt;
    }
    url->setUserInfo(QString());
    return url;
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
    PlaceOutcome outcome{.isAnswered = isAnswered(*reply_)};
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
