#pragma once

#include "places/place_request.h"
#include "places/place_service.h"
#include "platform/end_of_turn.h"
#include "store/image.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

class QNetworkAccessManager;

namespace pinmora {

/// Sends requests for place names, a few at a time on connections that stay open. Requests of one
/// turn of the event loop go in their order; a few that come together pass by the many that wait,
/// as a person is looking at those.
///
/// A service that does not answer a few times in a row is given up, and with it all that waits, so
/// that nothing hangs for hours.
class RequestQueue {
public:
    using Number = std::uint64_t; ///< of a request; no two have the same
    using FindService = std::function<PlaceService()>;
    /// Called once for each request that was not cancelled, never from within add() or cancel().
    using Ended = std::function<void(Number, const PlaceOutcome &)>;

    RequestQueue(FindService findService, PlaceLimits limits, Ended ended);
    ~RequestQueue();
    RequestQueue(const RequestQueue &) = delete;
    RequestQueue &operator=(const RequestQueue &) = delete;

    Number add(PositionTexts position);
    void cancel(Number number);
    void cancelAll();
    /// What is sent from now on goes to the service that is found then.
    void serviceChanged() { url_.reset(); }

private:
    void turn();
    /// Asked for until there is one.
    bool hasService();
    void start(Number number, const PositionTexts &position);
    void end(Number number, const PlaceOutcome &outcome);
    void giveUp();

    FindService findService_;
    PlaceLimits limits_;
    Ended ended_;
    Number lastNumber_ = 0;
    std::unordered_map<Number, PositionTexts> positions_; ///< of those that have not been sent
    std::vector<Number> added_;                           ///< in this turn
    std::deque<Number> waiting_; ///< cancelled ones are passed over when their turn comes
    int silences_ = 0;           ///< requests without an answer, in a row
    PlaceService service_;
    std::optional<QUrl> url_;                        ///< of the service, once there is one
    std::unique_ptr<QNetworkAccessManager> network_; ///< once there is a service
    std::unordered_map<Number, std::unique_ptr<PlaceRequest>> running_;
    std::vector<std::unique_ptr<PlaceRequest>> over_; ///< until nobody is within them any more
    EndOfTurn endOfTurn_;
};

} // namespace pinmora
