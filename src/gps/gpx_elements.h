#pragma once

#include "gps/log_report.h"
#include "gps/track_writer.h"
#include "platform/xml_parser.h"
#include "store/import_journal.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// Makes tracks and points out of the elements of GPX documents. Segments become tracks, track
/// points with a time become points; routes and waypoints are passed over. Texts are kept as they
/// are.
///
/// The state is that of a controller which has always read one file after the other: the counters,
/// gpxFile, the latest track and the point being read outlive a document.
class GpxElements : public XmlEvents {
public:
    explicit GpxElements(Context &context) : writer_(context) {}

    /// Starts a document. All three must stay until its end.
    void beginDocument(LogReport &report, const XmlParser &parser);

    void didStartElement(std::string_view name, const char *const *attributes) override;
    void foundCharacters(std::string_view text) override;
    void didEndElement(std::string_view name) override;

    /// Whether a `gpx` element has started; until then nothing is taken in.
    bool gpxFile() const { return gpxFile_; }
    void setGpxFile(bool yes) { gpxFile_ = yes; }
    /// Whether elements are taken in.
    bool activeLog() const { return activeLog_; }
    void setActiveLog(bool yes) { activeLog_ = yes; }
    /// Whether values are kept: from the start of a segment, or a point, to the end of a segment.
    bool inTrack() const { return inTrack_; }
    void setInTrack(bool yes) { inTrack_ = yes; }
    /// The numbers of the latest track and point since start-up.
    int trackCount() const { return trackCount_; }
    int track_partCount() const { return track_partCount_; }

    /// Adds to `facts` what the next document depends on.
    void tell(ImportFacts &facts) const;
    /// Takes over what a reader once told; `currentTrack` is the record of that serial.
    void restore(const ImportFacts &facts, track *currentTrack);
    /// Has counting go on behind what `other` has counted.
    void countOnFrom(const GpxElements &other);

private:
    /// The point being read. A text without a value has not been found yet.
    struct TrackPos {
        Text lat;
        Text lon;
        Text ele;
        Text time;
        std::optional<Date> date; ///< what `time` says
        std::size_t timeLine = 0; ///< where `time` is, if it does not fit
    };

    void keepPosition(const char *const *attributes);
    void keepTime();
    void finishPoint();
    void tellUnusable();
    std::optional<Date> toTime(std::string_view text);
    bool hasCurrentTrack() const {
        return writer_.stillHolds(currentTrack_, trackCount_, currentTrackLog_);
    }
    void setText() { currentStringValue_.emplace(); }
    void releaseText() { currentStringValue_.reset(); }

    TrackWriter writer_;
    LogReport *report_ = nullptr;
    const XmlParser *parser_ = nullptr;
    std::optional<LocalZone> zone_; ///< one for each document

    bool gpxFile_ = false;
    bool activeLog_ = false;
    bool inTrack_ = false;
    int trackCount_ = 0;
    int track_partCount_ = 0;
    track *currentTrack_ = nullptr;         ///< numbered trackCount_
    std::filesystem::path currentTrackLog_; ///< where it comes from
    TrackPos currentTrackPos_;
    std::optional<std::string> currentStringValue_;
    int openValues_ = 0; ///< `ele` and `time` elements that have started and not ended
};

} // namespace pinmora
