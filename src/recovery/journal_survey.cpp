#include "recovery/journal_survey.h"

#include "persistence/value_text.h"
#include "platform/translation.h"
#include "recovery/journal_file.h"
#include "recovery/record_elements.h"
#include "store/image.h"
#include "store/track_part.h"

#include <algorithm>
#include <map>

namespace pinmora {

namespace {

/// What has been done since some place in the journal.
class WorkCount {
public:
    void clear() { *this = {}; }

    /// Counts a frame; nothing counts until its step ends.
    void take(const Frame &frame) {
        switch (frame.kind) {
        case FrameKind::Inserted:
        case FrameKind::Changed:
            serial_ = 0;
            readRecordElements(frame.payload, [&](std::string_view entity, auto attributes) {
                note(entity, attributes, frame.kind == FrameKind::Inserted);
                return true;
            });
            break;
        case FrameKind::ImportEnd:
            pendingPoints_ += resultFrom(frame.payload).value_or(ImportResult()).points;
            break;
        case FrameKind::StepEnd:
            isPersons_ = isPersons_ || frame.payload == personsStep;
            photos_.merge(pendingPhotos_);
            points_ += std::exchange(pendingPoints_, 0);
            break;
        default:
            break;
        }
    }

    /// Where a base is counted as well, it has the photos that were changed.
    void addTo(JournalSurvey &survey, bool countsChanges) const {
        survey.hasWork = survey.hasWork || isPersons_;
        survey.points += points_;
        survey.photos += static_cast<std::size_t>(
            std::count_if(photos_.begin(), photos_.end(),
                          [&](const auto &photo) { return photo.second || countsChanges; }));
    }

private:
    void note(std::string_view entity, const char *const *attributes, bool isNew) {
        // The first attribute is the serial, or it is the one before plus 1.
        const bool hasSerial = *attributes && std::string_view(attributes[0]) == "id";
        serial_ = hasSerial ? serialFromText(attributes[1]).value_or(0) : serial_ + 1;
        if (entity == track_part::description().name()) {
            pendingPoints_ += isNew ? 1 : 0;
        }
        if (entity != image::description().name()) {
            return;
        }
        pendingPhotos_.emplace(serial_, isNew);
    }

    std::map<std::uint32_t, bool> photos_; ///< by serial: whether it came in
    std::map<std::uint32_t, bool> pendingPhotos_;
    std::size_t points_ = 0;
    std::size_t pendingPoints_ = 0;
    std::uint32_t serial_ = 0; ///< of the element
    bool isPersons_ = false;
};

} // namespace

JournalSurvey surveyJournal(const std::filesystem::path &journal, std::string_view liveState) {
    JournalSurvey survey;
    JournalFile file;
    if (const std::error_code error = file.open(journal)) {
        survey.fault = error == std::errc::illegal_byte_sequence
                           ? translated("recovery", "it is no journal that this version can read")
                           : error.message();
        return survey;
    }
    const Frame *frame = file.next();
    const auto start =
        frame && frame->kind == FrameKind::Start ? startFrom(frame->payload) : std::nullopt;
    if (!start) {
        survey.fault = translated("recovery", "the journal is damaged from its start on");
        return survey;
    }
    survey.start = *start;
    WorkCount work;
    const auto mark = [&](const std::string &state) {
        survey.end = file.goodBytes();
        survey.marks.push_back({state, survey.end});
        if (state == liveState) {
            survey.live = survey.marks.back();
            work.clear();
        }
    };
    mark(start->state);
    while ((frame = file.next())) {
        work.take(*frame);
        if (frame->kind == FrameKind::Saved) {
            mark(frame->payload);
        } else if (frame->kind == FrameKind::StepEnd) {
            survey.end = file.goodBytes();
        }
    }
    if (!survey.live) {
        survey.photos = start->photos;
        survey.points = start->points;
        survey.hasWork = start->hasContent;
    }
    work.addTo(survey, survey.live.has_value());
    return survey;
}

} // namespace pinmora
