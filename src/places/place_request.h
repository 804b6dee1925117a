#pragma once

#include "places/place_answer.h"
#include "places/place_service.h"
#include "platform/http.h"
#include "store/image.h"

#include <QTimer>
#include <QUrl>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

class QNetworkAccessManager;

namespace pinmora {

/// What has become of a request.
struct PlaceOutcome {
    bool isAnswered = false;             ///< the service has answered, whatever it said
    std::optional<PlaceAnswer> answer{}; ///< nothing when it said nothing of use
};

/// Where a service's requests go; nothing for a service that nobody can ask.
std::optional<QUrl> placeUrl(const PlaceService &service);

/// One request for the names of a position, with a buffer of its own. Ends by itself, or is
/// cancelled by its destruction.
class PlaceRequest {
public:
    /// Called once at most, never from the constructor; must not destroy the request.
    using Ended = std::function<void(const PlaceOutcome &)>;

    /// `url` is that of the service; the network must outlive the request.
    PlaceRequest(QNetworkAccessManager &network, const QUrl &url, const PlaceService &service,
                 const PositionTexts &position, const PlaceLimits &limits, Ended ended);
    ~PlaceRequest();
    PlaceRequest(const PlaceRequest &) = delete;
    PlaceRequest &operator=(const PlaceRequest &) = delete;

private:
    void didReceiveData();
    /// Whatever the status of the answer is: its body decides.
    void connectionDidFinishLoading();
    void end(const PlaceOutcome &outcome);

    const std::size_t mostBytes_;
    Ended ended_; ///< empty once it has ended
    std::string receivedData_;
    OwnedReply reply_;
    QTimer limit_;
};

} // namespace pinmora
