#include "shell/time_strip.h"

#include "matching/clock_offset.h"
#include "matching/matcher.h"
#include "matching/photo_gaps.h"
#include "persistence/context.h"
#include "shell/offset_words.h"
#include "store/library_arrays.h"
#include "store/offset.h"

#include <algorithm>
#include <map>
#include <unordered_set>
#include <utility>

namespace pinmora {

TimeStrip::TimeStrip(Context &context, LibraryArrays &arrays, PhotoGaps &gaps,
                     ClockOffset &clockOffset, Matcher &matcher,
                     std::function<void()> selectionChanged)
    : context_(context), arrays_(arrays), gaps_(gaps), clockOffset_(clockOffset), matcher_(matcher),
      selectionChanged_(std::move(selectionChanged)), endOfTurn_([this] { changed.emit(); }) {
    context.addObserver(*this, {.entity = &image::description()});
    context.addObserver(*this, {.entity = &offset::description()});
    context.addObserver(*this, {.entity = &track::description(), .values = false});
    connections_.push_back(gaps.changed.connect([this] { // points, or another offset in force
        barsStale_ = true;
        ticksStale_ = true;
        endOfTurn_.ask();
    }));
    connections_.push_back(arrays.pictureArray.selectionChanged.connect([this] {
        selectionStale_ = true;
        endOfTurn_.ask();
    }));
    connections_.push_back(clockOffset.turning.onChange([this](const auto &) {
        placesStale_ = true;
        endOfTurn_.ask();
    }));
}

TimeStrip::~TimeStrip() {
    context_.removeObserver(*this);
}

void TimeStrip::didChange(Record &record, std::string_view key) {
    if (&record.entity() == &offset::description() || key == "date" || key == "no_capture_time" ||
        key == "camera") {
        follow(record);
    }
}

void TimeStrip::didDelete(Record &record) {
    measured_.erase(&record);
    follow(record);
}

void TimeStrip::follow(const Record &record) {
    (&record.entity() == &track::description() ? barsStale_ : ticksStale_) = true;
    endOfTurn_.ask();
}

const std::vector<TimeStrip::Bar> &TimeStrip::bars() {
    if (std::exchange(barsStale_, false)) {
        gatherBars();
    }
    return bars_;
}

/// Only tracks that have come or grown are walked over.
void TimeStrip::gatherBars() {
    bars_.clear();
    for (const track *one : arrays_.gpsTrackArrayController.arrangedObjects()) {
        const auto [found, isNew] = measured_.try_emplace(one);
        Measured &measured = found->second;
        if (isNew || measured.summary.points != one->points().size()) {
            measured.summary = summaryOf(*one);
            measured.number = one->track_id() ? std::to_string(*one->track_id()) : std::string();
        }
        if (measured.summary.from) {
            bars_.push_back({.number = measured.number,
                             .from = *measured.summary.from,
                             .to = *measured.summary.to});
        }
    }
}

const std::vector<TimeStrip::Tick> &TimeStrip::ticks() {
    if (std::exchange(ticksStale_, false)) {
        gatherTicks();
        placesStale_ = true;
        selectionStale_ = true;
    }
    if (std::exchange(placesStale_, false)) {
        placeTicks();
    }
    if (std::exchange(selectionStale_, false)) {
        markSelected();
    }
    return ticks_;
}

void TimeStrip::gatherTicks() {
    ticks_.clear();
    still_.clear();
    turned_.reset();
    std::map<std::string, std::chrono::seconds, std::less<>> clocks;
    for (image *photo : arrays_.pictureArray.arrangedObjects()) {
        if (photo->captureTime()) {
            const std::string camera = clockOffset_.clockOf(*photo);
            auto clock = clocks.find(camera);
            if (clock == clocks.end()) {
                clock = clocks.emplace(camera, clockOffset_.clock(camera)).first;
            }
            ticks_.push_back({.photo = photo, .at = *photo->date() + clock->second});
        }
    }
    std::stable_sort(ticks_.begin(), ticks_.end(),
                     [](const Tick &a, const Tick &b) { return a.at < b.at; });
    still_.reserve(ticks_.size());
    for (const Tick &tick : ticks_) {
        still_.push_back(tick.at);
    }
}

void TimeStrip::placeTicks() {
    const std::optional<ClockTurn> &turn = clockOffset_.turning.get();
    if (turn && turned_ != turn->camera) {
        turned_ = turn->camera;
        turning_.assign(ticks_.size(), false);
        for (std::size_t i = 0; i < ticks_.size(); ++i) {
            turning_[i] = clockOffset_.clockOf(*ticks_[i].photo) == turn->camera;
        }
    }
    const TrackCoverage &coverage = gaps_.coverage();
    const bool anyPoint = !coverage.stretches().empty();
    for (std::size_t i = 0; i < ticks_.size(); ++i) {
        Tick &tick = ticks_[i];
        tick.at = still_[i] + (turn && turning_[i] ? turn->by : std::chrono::seconds(0));
        tick.far = anyPoint && !coverage.covers(tick.at);
    }
}

void TimeStrip::markSelected() {
    const auto &selected = arrays_.pictureArray.selectedObjects();
    const std::unordered_set<const image *> chosen(selected.begin(), selected.end());
    for (Tick &tick : ticks_) {
        tick.selected = chosen.contains(tick.photo);
    }
}

std::optional<TimeStrip::Extent> TimeStrip::tracksExtent() {
    std::optional<Extent> extent;
    for (const Bar &bar : bars()) {
        extent = extent ? Extent{std::min(extent->from, bar.from), std::max(extent->to, bar.to)}
                        : Extent{bar.from, bar.to};
    }
    return extent;
}

std::optional<TimeStrip::Extent> TimeStrip::photosExtent() {
    if (ticks().empty()) {
        return std::nullopt;
    }
    const auto [first, last] = std::minmax_element(
        ticks_.begin(), ticks_.end(), [](const Tick &a, const Tick &b) { return a.at < b.at; });
    return Extent{first->at, last->at};
}

std::optional<std::chrono::seconds> TimeStrip::gapOf(const image &photo) {
    return gaps_.gapOf(photo);
}

void TimeStrip::choose(const std::vector<image *> &photos, Choice how) {
    std::vector<image *> chosen;
    if (how != Choice::Only) {
        chosen = arrays_.pictureArray.selectedObjects();
    }
    const std::unordered_set<const image *> before(chosen.begin(), chosen.end());
    for (image *photo : photos) {
        if (!before.contains(photo)) {
            chosen.push_back(photo);
        } else if (how == Choice::Toggled) {
            std::erase(chosen, photo);
        }
    }
    arrays_.pictureArray.setSelectedObjects(chosen);
    selectionChanged_();
}

void TimeStrip::grasp(const image &photo) {
    clockOffset_.turning.set(ClockTurn{.camera = clockOffset_.clockOf(photo)});
}

void TimeStrip::turnTo(std::chrono::seconds by) {
    if (const std::optional<ClockTurn> &turn = clockOffset_.turning.get()) {
        clockOffset_.turning.set(ClockTurn{.by = by, .camera = turn->camera});
    }
}

void TimeStrip::letGo() {
    clockOffset_.endTurn();
}

void TimeStrip::cancel() {
    clockOffset_.cancelTurn();
}

bool TimeStrip::isTurning() const {
    return clockOffset_.turning.get().has_value();
}

std::string TimeStrip::turnWords() const {
    const std::optional<ClockTurn> &turn = clockOffset_.turning.get();
    if (!turn) {
        return {};
    }
    const std::chrono::seconds before = clockOffset_.clock(turn->camera);
    const std::string by = shortOffset(turn->by);
    return before.count() == 0 ? by : by + " → " + shortOffset(before + turn->by);
}

std::chrono::seconds TimeStrip::clock() const {
    return clockOffset_.clock(clockOffset_.cameraInHand());
}

std::string TimeStrip::clockWords() const {
    return offsetSentenceOf(clockOffset_.cameraInHand(), clock());
}

void TimeStrip::step(std::chrono::seconds by) {
    clockOffset_.turning.set(ClockTurn{.by = by, .camera = clockOffset_.cameraInHand()});
    clockOffset_.endTurn();
}

bool TimeStrip::canSetFromMoment() {
    const auto &selected = arrays_.pictureArray.selectedObjects();
    return selected.size() == 1 && selected.front()->captureTime() &&
           !gaps_.coverage().stretches().empty();
}

void TimeStrip::setFromMoment(Date moment) {
    if (!canSetFromMoment()) {
        return;
    }
    if (track_part *const point = gaps_.points().inTime(moment)) {
        matcher_.setFromPoint(*point);
    }
}

} // namespace pinmora
