#include "matching/offset_proposal.h"

#include "matching/offset_counts.h"

#include <algorithm>
#include <map>
#include <utility>

namespace pinmora {

namespace {

using std::chrono::hours;
using std::chrono::microseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr std::size_t fewestPhotos = 3;
/// No place on earth is further from another by its clocks: UTC-12 and UTC+14.
constexpr hours farthestZone{26};
/// Within this a placed photo and the track have met.
constexpr seconds sameMoment{60};
/// Any offset is known no better than the stretch of offsets that fit as well is long.
constexpr minutes closestFit{20};
/// Clocks off by a half or a quarter hour are no commoner than those off by any minutes between.
constexpr minutes partOfHourFit{30};

/// By so many photos an offset must be ahead to be clearly better: a part of them, and some.
std::size_t share(std::size_t photos, std::size_t percent) {
    return std::max(fewestPhotos, (photos * percent + 99) / 100);
}

/// An offset, and the photos that lie on the track with it.
struct Candidate {
    seconds offset{0};
    std::size_t onTrack = 0;
    bool isApproximate = false;
};

/// The best of the multiples of a step, the nearest to none among equals, and the best of the
/// others.
struct Contest {
    Candidate winner;
    std::size_t runnerUp = 0;
};

class Judge {
public:
    explicit Judge(OffsetEvidence evidence);

    std::optional<Candidate> verdict() const;

private:
    Candidate candidate(seconds offset) const { return {offset, counts_.at(offset)}; }
    bool putsMostOnTrack(const Candidate &one) const {
        return one.onTrack >= fewestPhotos && one.onTrack * 2 > counts_.photos();
    }
    bool isClearlyBetter(const Candidate &one) const {
        return putsMostOnTrack(one) && one.onTrack >= now_.onTrack + share(counts_.photos(), 25);
    }
    std::size_t margin() const { return share(counts_.photos(), 15); }
    std::size_t little() const { return (counts_.photos() + 49) / 50; }

    std::size_t meetings(seconds offset) const;
    std::optional<Candidate> byPlaced() const;
    seconds refined(seconds offset) const;
    Contest contest(minutes step) const;
    std::optional<Candidate> taggedZone() const;
    std::optional<Candidate> clearZone(Candidate &best) const;
    std::optional<Candidate> anyOffset(std::size_t zoneOnTrack) const;

    OffsetCounts counts_;
    seconds inForce_;
    std::vector<seconds> tags_;
    std::vector<PlacedPhoto> placed_;
    Candidate now_;
    OffsetCounts::Best any_;
    std::vector<Candidate> zones_; ///< all quarter hours
};

Judge::Judge(OffsetEvidence evidence)
    : counts_(std::move(evidence.photos), std::move(evidence.coverage)), inForce_(evidence.inForce),
      tags_(std::move(evidence.impliedByTags)), placed_(std::move(evidence.placed)),
      now_(candidate(evidence.inForce)), any_(counts_.best()) {
    for (minutes offset = -farthestZone; offset <= farthestZone; offset += minutes(15)) {
        zones_.push_back(candidate(offset));
    }
}

/// How far the photo is from the nearest moment at which the track passed by it.
std::optional<microseconds> missOf(const PlacedPhoto &photo, seconds offset) {
    std::optional<microseconds> least;
    for (const Date pass : photo.passes) {
        const microseconds miss = pass - (photo.taken + offset);
        if (!least || std::chrono::abs(miss) < std::chrono::abs(*least)) {
            least = miss;
        }
    }
    return least;
}

/// How many placed photos were where the track passed at that moment.
std::size_t Judge::meetings(seconds offset) const {
    return static_cast<std::size_t>(
        std::count_if(placed_.begin(), placed_.end(), [&](const PlacedPhoto &photo) {
            const auto miss = missOf(photo, offset);
            return miss && std::chrono::abs(*miss) <= sameMoment;
        }));
}

/// The middle one of what the placed photos say, each for itself.
seconds Judge::refined(seconds offset) const {
    std::vector<microseconds> misses;
    for (const PlacedPhoto &photo : placed_) {
        if (const auto miss = missOf(photo, offset);
            miss && std::chrono::abs(*miss) <= sameMoment) {
            misses.push_back(*miss);
        }
    }
    const auto middle = misses.begin() + static_cast<std::ptrdiff_t>(misses.size() / 2);
    std::nth_element(misses.begin(), middle, misses.end());
    return offset + std::chrono::round<seconds>(*middle);
}

/// Of several passes by the same places that one counts which puts clearly more photos on the
/// track.
std::optional<Candidate> Judge::byPlaced() const {
    std::optional<Candidate> best;
    std::size_t most = placed_.size() / 2; // to be exceeded
    std::size_t rival = 0;
    for (const PlacedPhoto &photo : placed_) {
        for (const Date pass : photo.passes) {
            const auto offset = std::chrono::round<seconds>(pass - photo.taken);
            const std::size_t met = meetings(offset);
            const bool isAsGood =
                best && met == most && std::chrono::abs(offset - best->offset) > 2 * sameMoment;
            if (met > most) {
                best = candidate(offset);
                most = met;
                rival = 0;
            } else if (isAsGood) {
                Candidate other = candidate(offset);
                if (other.onTrack > best->onTrack) {
                    std::swap(*best, other);
                }
                rival = std::max(rival, other.onTrack);
            }
        }
    }
    if (!best || best->onTrack < rival + (rival > 0 ? margin() : 0)) {
        return std::nullopt;
    }
    best = candidate(refined(best->offset));
    return best->onTrack * 2 > counts_.photos() ? best : std::nullopt;
}

/// Of the multiples of a step, the best one, the nearest to none among equals.
Contest Judge::contest(minutes step) const {
    Contest result;
    for (const Candidate &one : zones_) {
        const Candidate &best = result.winner;
        if (one.offset % step != seconds(0)) {
            continue;
        }
        const bool isNearer = std::chrono::abs(one.offset) < std::chrono::abs(best.offset);
        if (one.onTrack > best.onTrack || (one.onTrack == best.onTrack && isNearer)) {
            result.runnerUp = std::max(result.runnerUp, best.onTrack);
            result.winner = one;
        } else {
            result.runnerUp = std::max(result.runnerUp, one.onTrack);
        }
    }
    return result;
}

/// The offset that more than half of the tags tell.
std::optional<Candidate> Judge::taggedZone() const {
    std::map<seconds, std::size_t> votes;
    for (const seconds tag : tags_) {
        ++votes[tag];
    }
    for (const auto &[offset, count] : votes) {
        if (count * 2 > tags_.size()) {
            return candidate(offset);
        }
    }
    return std::nullopt;
}

/// Finer steps count only where they are better than coarser ones, and none of them where there is
/// any other offset that is. Nothing where another one is as good.
std::optional<Candidate> Judge::clearZone(Candidate &best) const {
    Contest whole = contest(hours(1));
    for (const minutes step : {minutes(30), minutes(15)}) {
        const Contest finer = contest(step);
        if (finer.winner.onTrack >= whole.winner.onTrack + little()) {
            whole = finer;
        }
    }
    best = whole.winner;
    if (const auto tagged = taggedZone(); tagged && tagged->onTrack + margin() > best.onTrack) {
        return tagged;
    }
    const bool isWholeHour = best.offset % hours(1) == seconds(0);
    if (!isWholeHour && any_.end - any_.begin > partOfHourFit) {
        return std::nullopt;
    }
    const double bestOfAny = any_.share * static_cast<double>(counts_.photos());
    const bool isBest = static_cast<double>(best.onTrack + little()) > bestOfAny;
    return isBest && best.onTrack >= whole.runnerUp + margin() ? std::optional(best) : std::nullopt;
}

/// Known to some minutes, or not at all.
std::optional<Candidate> Judge::anyOffset(std::size_t zoneOnTrack) const {
    if (any_.end - any_.begin > closestFit) {
        return std::nullopt;
    }
    const microseconds middle = any_.begin + (any_.end - any_.begin) / 2;
    Candidate one = candidate(std::chrono::round<minutes>(middle));
    one.isApproximate = true;
    const bool isClear =
        one.onTrack >= share(counts_.photos(), 80) && one.onTrack >= zoneOnTrack + margin();
    return isClear ? std::optional(one) : std::nullopt;
}

std::optional<Candidate> Judge::verdict() const {
    const std::size_t met = meetings(inForce_);
    if (met * 2 > placed_.size()) {
        return std::nullopt; // they confirm it
    }
    if (const auto placed = byPlaced()) {
        return placed;
    }
    if (!placed_.empty() && met > 0) {
        return std::nullopt; // they do not agree
    }
    Candidate bestZone;
    auto best = clearZone(bestZone);
    if (!best) {
        best = anyOffset(std::max(bestZone.onTrack, now_.onTrack));
    }
    return best && isClearlyBetter(*best) ? best : std::nullopt;
}

} // namespace

std::optional<OffsetProposal> proposeOffset(OffsetEvidence evidence) {
    const std::size_t photos = evidence.photos.size();
    if (photos == 0 || evidence.coverage.stretches().empty()) {
        return std::nullopt;
    }
    const Judge judge(std::move(evidence));
    const auto best = judge.verdict();
    return best ? std::optional(OffsetProposal{.offset = best->offset,
                                               .onTrack = best->onTrack,
                                               .photos = photos,
                                               .isApproximate = best->isApproximate})
                : std::nullopt;
}

} // namespace pinmora
