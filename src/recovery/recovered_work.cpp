#include "recovery/recovered_work.h"

#include "persistence/undo_group.h"
#include "persistence/xml_store.h"
#include "platform/atomic_file.h"
#include "platform/input_file.h"
#include "platform/translation.h"
#include "recovery/journal_replay.h"
#include "recovery/recovery_recorder.h"
#include "recovery/work_merge.h"

namespace pinmora {

namespace fs = std::filesystem;

namespace {

/// Whether the store document of a mark is at hand.
bool isAtHand(const WorkFolder &work, const JournalSurvey::Mark &mark) {
    std::error_code none;
    return mark.state == emptyStoreState || fs::exists(work.base(mark.state), none);
}

/// Where a replay can start: at the live mark or, best, as late before it as can be; at any other
/// mark when there is nothing else, and then the live mark is of no use.
std::optional<JournalSurvey::Mark> startOf(const WorkFolder &work, JournalSurvey &survey) {
    std::optional<JournalSurvey::Mark> start;
    for (const JournalSurvey::Mark &mark : survey.marks) {
        const bool isBehind = survey.live && mark.position > survey.live->position;
        if (isAtHand(work, mark) && !(start && isBehind)) {
            start = mark;
        }
    }
    if (start && survey.live && start->position > survey.live->position) {
        survey.live.reset();
    }
    return start;
}

/// The copy is there as a whole or not at all.
void copyFile(const fs::path &from, const fs::path &to, FileSystem &files) {
    InputFile source;
    AtomicFile copy(files);
    if (source.open(from) || copy.open(to)) {
        return;
    }
    std::string buffer(inputBlockSize, '\0');
    for (;;) {
        const auto block = source.read(buffer);
        if (!block || copy.write(*block)) {
            return;
        }
        if (block->empty()) {
            static_cast<void>(copy.commit());
            return;
        }
    }
}

/// Why the work cannot be brought back, a sentence without its full stop; "" if it can.
std::string faultOf(const JournalSurvey &survey, bool hasStart) {
    return !survey.fault.empty() || hasStart
               ? survey.fault
               : translated("recovery", "the library that it goes on from is not there any more");
}

std::string sentence(const fs::path &path, const std::string &fault) {
    return filled(translated("recovery", "%1: %2."), {path.string(), fault});
}

Date timeOf(const fs::path &file) {
    std::error_code none;
    const auto written = fs::last_write_time(file, none);
    return std::chrono::floor<Date::duration>(std::chrono::file_clock::to_sys(written));
}

} // namespace

std::error_code RecoveredWork::setAside(const fs::path &storeFile, std::string_view storeState) {
    loadedState_ = storeState;
    loadedEnd_ = library_.nextSerial();
    const WorkFolder current = folder_.current();
    if (!current.exists()) {
        return current.remove(folder_.files());
    }
    const JournalSurvey survey = surveyJournal(current.journal(), loadedState_);
    if (survey.fault.empty() && !survey.hasWork) {
        return current.remove(folder_.files());
    }
    addBase(current, survey, storeFile);
    return folder_.setCurrentAside();
}

/// The store file is only ever replaced, never written into, so that a second name keeps what it
/// holds now. Failing here leaves the work good for as long as the store file stays as it is.
void RecoveredWork::addBase(const WorkFolder &work, const JournalSurvey &survey,
                            const fs::path &storeFile) const {
    if (!survey.live || isAtHand(work, *survey.live)) {
        return;
    }
    const fs::path base = work.base(survey.live->state);
    if (folder_.files().link(storeFile, base)) {
        copyFile(storeFile, base, folder_.files());
    } else {
        folder_.files().syncFolder(work.path);
    }
}

std::vector<RecoveryOffer> RecoveredWork::offers() const {
    std::vector<RecoveryOffer> offers;
    for (const WorkFolder &work : folder_.asides()) {
        JournalSurvey survey = surveyJournal(work.journal(), loadedState_);
        RecoveryOffer &offer = offers.emplace_back();
        offer.folder = work;
        offer.time = timeOf(work.journal());
        offer.photos = survey.photos;
        offer.points = survey.points;
        const bool hasStart = startOf(work, survey).has_value();
        offer.fault = faultOf(survey, hasStart);
    }
    return offers;
}

std::optional<std::string> RecoveredWork::bringBack(const RecoveryOffer &offer) {
    const WorkFolder &work = offer.folder;
    JournalSurvey survey = surveyJournal(work.journal(), loadedState_);
    const std::optional<JournalSurvey::Mark> start = startOf(work, survey);
    if (const std::string fault = faultOf(survey, start.has_value()); !fault.empty()) {
        return sentence(work.path, fault);
    }
    Context replayed(library_.model());
    if (start->state != emptyStoreState) {
        if (const auto error = XmlStore(work.base(start->state)).read(replayed)) {
            return error->message();
        }
    }
    JournalReplay replay(replayed, importer_);
    replay.run(work.journal(), survey, *start);
    {
        const RecoveryRecorder::Pause pause(recorder_);
        const UndoGroup group(library_, translated("recovery", "Bring Back Unsaved Work"));
        WorkMerge(library_, replay, loadedEnd_).run();
    }
    if (std::optional<std::string> error = recorder_.writeBase()) {
        return error;
    }
    if (!replay.fault().empty()) {
        return sentence(work.path, replay.fault());
    }
    const std::error_code error = work.remove(folder_.files());
    return error ? std::optional(sentence(work.path, error.message())) : std::nullopt;
}

std::error_code RecoveredWork::discard(const RecoveryOffer &offer) const {
    return offer.folder.remove(folder_.files());
}

} // namespace pinmora
