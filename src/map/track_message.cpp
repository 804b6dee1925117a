#include "map/feed_messages.h"

#include "map/json_text.h"
#include "map/placement.h"
#include "platform/date.h"
#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace pinmora::feed_messages {
namespace {

/// One track of the message, as lists without their brackets.
class TrackLists {
public:
    explicit TrackLists(const track &track) : track_(track) {}

    /// Takes the first point and then every `step`th; the last one is taken by end().
    void meet(const track_part &point, std::size_t step, LocalZone &zone) {
        last_ = &point;
        if (met_++ % step == 0) {
            due_ = true;
        }
        if (due_ && take(point, zone)) { // one that has no place leaves its turn to the next
            due_ = false;
        }
    }
    void end(LocalZone &zone) {
        if (last_ && last_ != taken_) {
            take(*last_, zone);
        }
    }

    bool isEmpty() const { return !taken_; }
    void appendTo(std::string &json, std::size_t number) const {
        json.append(R"({"number":)")
            .append(std::to_string(track_.track_id().value_or(static_cast<std::int32_t>(number))));
        json.append(R"(,"lat":[)").append(lat_);
        json.append(R"(],"lon":[)").append(lon_);
        json.append(R"(],"time":[)").append(time_).append("]}");
    }

private:
    bool take(const track_part &point, LocalZone &zone) {
        const std::optional<double> lat = degreesWithin(point.lat().view(), 90);
        const std::optional<double> lon =
            lat ? degreesWithin(point.lon().view(), 180) : std::nullopt;
        if (!lon) {
            return false;
        }
        if (taken_) {
            for (std::string *list : {&lat_, &lon_, &time_}) {
                *list += ',';
            }
        }
        taken_ = &point;
        appendJson(lat_, *lat);
        appendJson(lon_, *lon);
        time_ += point.time()
                     ? std::to_string(zone.wallClockAt(*point.time()).time_since_epoch().count())
                     : "null";
        return true;
    }

    const track &track_;
    std::string lat_;
    std::string lon_;
    std::string time_;
    const track_part *last_ = nullptr;  ///< that was met
    const track_part *taken_ = nullptr; ///< the last one
    std::size_t met_ = 0;
    bool due_ = false;
};

/// So that no more than `most` are taken, the two ends of each track among them.
std::size_t stepFor(std::size_t points, std::size_t tracks, std::size_t most) {
    if (points <= most) {
        return 1;
    }
    const std::size_t ends = 2 * tracks;
    return most > ends ? (points + most - ends - 1) / (most - ends) : points;
}

} // namespace

std::string tracks(const Context &context, std::size_t most) {
    std::vector<TrackLists> lists;
    std::unordered_map<const track *, std::size_t> places;
    for (const track *one : context.records<track>()) {
        places.emplace(one, lists.size());
        lists.emplace_back(*one);
    }
    LocalZone zone;
    const std::size_t step = stepFor(context.count<track_part>(), lists.size(), most);
    const track *current = nullptr;
    TrackLists *list = nullptr;
    for (const track_part *point : context.records<track_part>()) {
        if (const track *const its = point->track(); its != current) {
            const auto found = places.find(its);
            list = found == places.end() ? nullptr : &lists[found->second];
            current = its;
        }
        if (list) {
            list->meet(*point, step, zone);
        }
    }
    std::string json = R"({"kind":"tracks","tracks":[)";
    for (std::size_t i = 0; i < lists.size(); ++i) {
        lists[i].end(zone);
        if (!lists[i].isEmpty()) {
            if (json.back() != '[') {
                json += ',';
            }
            lists[i].appendTo(json, i + 1);
        }
    }
    return json + "]}";
}

} // namespace pinmora::feed_messages
