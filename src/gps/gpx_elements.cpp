#include "gps/gpx_elements.h"

#include "gps/iso_time.h"
#include "platform/translation.h"
#include "store/calendar_formats.h"
#include "store/track.h"

#include <algorithm>

namespace pinmora {

void GpxElements::beginDocument(LogReport &report, const XmlParser &parser) {
    report_ = &report;
    parser_ = &parser;
    zone_.emplace();
    openValues_ = 0;
    inTrack_ = false;
    if (!hasCurrentTrack()) {
        currentTrack_ = nullptr;
    }
}

void GpxElements::tell(ImportFacts &facts) const {
    facts.gpxFile = gpxFile_;
    facts.activeLog = activeLog_;
    facts.trackCount = trackCount_;
    facts.track_partCount = track_partCount_;
    facts.currentTrack = hasCurrentTrack() ? currentTrack_->serial() : 0;
    facts.lat = currentTrackPos_.lat;
    facts.lon = currentTrackPos_.lon;
    facts.ele = currentTrackPos_.ele;
    facts.time = currentTrackPos_.time;
    facts.date = currentTrackPos_.date;
}

void GpxElements::restore(const ImportFacts &facts, track *currentTrack) {
    gpxFile_ = facts.gpxFile;
    activeLog_ = facts.activeLog;
    trackCount_ = facts.trackCount;
    track_partCount_ = facts.track_partCount;
    currentTrack_ = currentTrack;
    currentTrackLog_ = currentTrack ? currentTrack->log_path().string() : std::string();
    currentTrackPos_ = {facts.lat, facts.lon, facts.ele, facts.time, facts.date};
}

void GpxElements::countOnFrom(const GpxElements &other) {
    trackCount_ = std::max(trackCount_, other.trackCount_);
    track_partCount_ = std::max(track_partCount_, other.track_partCount_);
}

void GpxElements::didStartElement(std::string_view name, const char *const *attributes) {
    const bool isValue = name == "ele" || name == "time";
    openValues_ += isValue ? 1 : 0;
    if (name == "gpx") {
        gpxFile_ = true;
    }
    if (!gpxFile_ || !activeLog_) {
        return;
    }
    if (isValue) {
        setText();
    } else if (name == "trkpt") {
        inTrack_ = true;
        keepPosition(attributes);
    } else if (name == "trkseg") {
        currentTrack_ = &writer_.makeTrack(++trackCount_, *report_);
        currentTrackLog_ = report_->path;
        inTrack_ = true;
    }
}

/// Only text inside a value element is ever asked for, so that outside nothing needs to be kept.
void GpxElements::foundCharacters(std::string_view text) {
    if (gpxFile_ && openValues_ > 0) {
        if (!currentStringValue_) {
            setText();
        }
        currentStringValue_->append(text);
    }
}

void GpxElements::didEndElement(std::string_view name) {
    const bool isTime = name == "time";
    const bool isEle = !isTime && name == "ele";
    openValues_ -= isTime || isEle ? 1 : 0;
    if (!gpxFile_ || !activeLog_) {
        releaseText();
        return;
    }
    if (isTime) {
        if (inTrack_ && currentStringValue_) {
            keepTime();
        }
        return; // the text stays
    }
    if (isEle) {
        if (inTrack_ && currentStringValue_) {
            currentTrackPos_.ele = Text(*currentStringValue_);
        }
    } else if (name == "trkpt") {
        finishPoint();
    } else if (name == "trkseg") {
        inTrack_ = false;
    }
    releaseText();
}

void GpxElements::keepPosition(const char *const *attributes) {
    for (; *attributes; attributes += 2) {
        const std::string_view name = attributes[0];
        if (name == "lat") {
            currentTrackPos_.lat = Text(attributes[1]);
        } else if (name == "lon") {
            currentTrackPos_.lon = Text(attributes[1]);
        }
    }
}

void GpxElements::keepTime() {
    currentTrackPos_.date = toTime(*currentStringValue_);
    currentTrackPos_.time = Text(*currentStringValue_);
    if (!currentTrackPos_.date && !report_->sample) {
        currentTrackPos_.timeLine = parser_->line();
    }
}

/// Without a time there is no point to make: it could never be chosen for a photo.
void GpxElements::finishPoint() {
    TrackPos &found = currentTrackPos_;
    if (!found.time.hasValue() || !found.date) {
        tellUnusable();
    }
    if (found.time.hasValue()) {
        writer_.makePoint(currentTrack_,
                          {std::move(found.lat), std::move(found.lon), std::move(found.ele),
                           found.date, ++track_partCount_},
                          *report_);
    }
    found = {};
}

/// The report shows the first only: words are sought for no other.
void GpxElements::tellUnusable() {
    const Text &time = currentTrackPos_.time;
    if (report_->sample) {
        report_->addUnusable({}, 0);
    } else if (!time.hasValue()) {
        report_->addUnusable(translated("gps", "point without time"), parser_->line());
    } else {
        report_->addUnusable(time.view().empty() ? translated("gps", "point with an empty time")
                                                 : std::string(time.view()),
                             currentTrackPos_.timeLine);
    }
}

std::optional<Date> GpxElements::toTime(std::string_view text) {
    return policyOf(report_->reading).isoTimes ? instantFromIsoText(text)
                                               : dateFromText(text, gpxTimeFormat, *zone_);
}

} // namespace pinmora
