#pragma once

#include <QNetworkReply>
#include <QUrl>

#include <memory>
#include <optional>

class QNetworkAccessManager;
class QNetworkRequest;

namespace pinmora {

/// The URL of an address on the web (http or https, with a host); nothing for any other.
std::optional<QUrl> webUrl(const QByteArray &address);

/// What all requests of the program have in common: its name, no cookies, no passwords that were
/// given elsewhere, and bytes as the server keeps them, so that what is counted is what is read.
void makePlain(QNetworkRequest &request);

/// This machine is asked directly, others through the person's proxy, if there is one.
void chooseProxy(QNetworkAccessManager &network, const QUrl &url);

/// Whether a finished reply is a whole answer, of whatever status. Some statuses show as errors of
/// the proxy or of the protocol.
bool isAnswered(const QNetworkReply &reply);

/// Ends what is under way and frees its connection. The reply still says that it has finished.
struct ReplyCanceller {
    void operator()(QNetworkReply *reply) const;
};
using OwnedReply = std::unique_ptr<QNetworkReply, ReplyCanceller>;

} // namespace pinmora
