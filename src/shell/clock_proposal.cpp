#include "shell/clock_proposal.h"

#include "matching/clock_evidence.h"
#include "matching/clock_offset.h"
#include "matching/matcher.h"
#include "matching/offset_counts.h"
#include "matching/photo_gaps.h"
#include "outlets/quiet_bar.h"
#include "persistence/context.h"
#include "persistence/undo_group.h"
#include "platform/translation.h"
#include "shell/offset_words.h"
#include "shell/reading_offer.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track_part.h"

#include <algorithm>
#include <functional>

namespace pinmora {

namespace {

constexpr const char *proposalSubject = "clock proposal";
constexpr const char *takenSubject = "clock set";

/// What the photos say that go by one clock.
struct ClockGroup {
    std::string camera; ///< whose own clock it is, or is to be; "": the clock of all others
    OffsetEvidence evidence;
};

/// One for each clock, then one for each of several cameras that go by the common one.
struct Question {
    std::vector<ClockGroup> clocks;
    std::vector<ClockGroup> cameras;
};

std::size_t onTrack(const OffsetEvidence &evidence, std::chrono::seconds offset) {
    return OffsetCounts(evidence.photos, evidence.coverage).at(offset);
}

/// Whether none of the cameras would lose by the offset.
bool isGoodForAll(const OffsetProposal &proposal, const std::vector<ClockGroup> &cameras) {
    return std::all_of(cameras.begin(), cameras.end(), [&](const ClockGroup &group) {
        return onTrack(group.evidence, proposal.offset) >=
               onTrack(group.evidence, group.evidence.inForce);
    });
}

std::vector<ProposedOffset> answerTo(const Question &question) {
    std::vector<ProposedOffset> proposed;
    bool isCommonProposed = false;
    for (const ClockGroup &group : question.clocks) {
        const auto proposal = proposeOffset(group.evidence);
        if (proposal && (!group.camera.empty() || isGoodForAll(*proposal, question.cameras))) {
            proposed.push_back({group.camera, *proposal});
            isCommonProposed = isCommonProposed || group.camera.empty();
        }
    }
    for (const ClockGroup &group : question.cameras) {
        const auto proposal = isCommonProposed ? std::nullopt : proposeOffset(group.evidence);
        if (proposal) {
            proposed.push_back({group.camera, *proposal});
        }
    }
    return proposed;
}

Question questionOf(const Context &context, const ClockOffset &clocks, NearestPoints &points) {
    std::set<std::string, std::less<>> own;
    std::set<std::string, std::less<>> common;
    for (const image *photo : context.records<image>()) {
        const std::string clock = clocks.clockOf(*photo);
        (clock.empty() ? common : own).emplace(photo->camera().view());
    }
    Question question;
    const auto gather = [&](const std::string &clock, const auto &goesByIt) {
        return gatherEvidence(context, points, clocks.clock(clock), goesByIt);
    };
    const auto isOf = [](const std::string &camera) {
        return [camera](const image &photo) { return photo.camera().view() == camera; };
    };
    question.clocks.push_back(
        {"", gather("", [&](const image &photo) { return clocks.clockOf(photo).empty(); })});
    for (const std::string &camera : own) {
        question.clocks.push_back({camera, gather(camera, isOf(camera))});
    }
    for (const std::string &camera : common) {
        if (common.size() > 1 && !camera.empty()) {
            question.cameras.push_back({camera, gather("", isOf(camera))});
        }
    }
    return question;
}

std::string textOf(const ProposedOffset &proposed) {
    const OffsetProposal &proposal = proposed.proposal;
    //: %1: an offset of the camera's clock
    const std::string text =
        proposed.camera.empty()
            ? translated("shell", "With %1, %n of %2 photos lie on the track.",
                         "With %1, %n of %2 photos lie on the track.", proposal.onTrack)
            //: %3: the name of a camera
            : translated("shell", "With %1, %n of %2 photos of %3 lie on the track.",
                         "With %1, %n of %2 photos of %3 lie on the track.", proposal.onTrack);
    const std::string words = shortOffset(proposal.offset);
    return filled(text, {proposal.isApproximate ? aboutWords(words) : words,
                         std::to_string(proposal.photos), cameraName(proposed.camera)});
}

/// What is said when the proposal has been taken: what has been set, and what comes next.
std::string takenHeadOf(const ProposedOffset &taken) {
    const OffsetProposal &set = taken.proposal;
    return offsetSentenceOf(taken.camera, set.offset, set.isApproximate) +
           (taken.camera.empty() ? "" : ".");
}

std::string takenTextOf(const ProposedOffset &taken) {
    return taken.proposal.isApproximate
               //: In quotes: an entry of a menu.
               ? translated("shell", "To make it exact, put one photo where it belongs, or use "
                                     "“Photo Was Taken At…”.")
               : translated("shell", "That is corrected now. Applying the log gives the photos "
                                     "their positions.");
}

} // namespace

ClockProposal::ClockProposal(const Parts &parts) : parts_(parts), endOfTurn_([this] { look(); }) {
    parts_.context.addObserver(*this, {.entity = &image::description()});
    parts_.context.addObserver(*this, {.entity = &offset::description()});
    parts_.context.addObserver(*this, {.entity = &track_part::description(), .values = false});
    connections_.push_back(parts_.readingOffer.changed.connect([this] { endOfTurn_.ask(); }));
    connections_.push_back(
        parts_.matcher.applied.connect([this](const ApplyOutcome &) { forgetTaken(); }));
    endOfTurn_.ask();
}

ClockProposal::~ClockProposal() {
    parts_.context.removeObserver(*this);
}

/// Of a photo only when it was taken, by whom, and where a hand has put it count.
void ClockProposal::didChange(Record &record, std::string_view key) {
    const bool isPhoto = &record.entity() == &image::description();
    if (!isPhoto || key == "date" || key == "camera" || key == "position_source") {
        endOfTurn_.ask();
    }
}

void ClockProposal::look() {
    if (taken_ && parts_.clockOffset.clock(taken_->first) != taken_->second) {
        forgetTaken();
    }
    if (job_.isRunning()) {
        isStale_ = true;
        return;
    }
    const bool hasBoth =
        parts_.context.count<image>() > 0 && parts_.context.count<track_part>() > 0;
    if (parts_.loadRunning || parts_.readingOffer.isOpen() || !hasBoth) {
        parts_.quietBar.withdraw(proposalSubject);
        return;
    }
    isStale_ = false;
    job_.start([this, question = questionOf(parts_.context, parts_.clockOffset,
                                            parts_.gaps.points())]() -> BackgroundJob::Outcome {
        return [this, proposed = answerTo(question)] { answered(proposed); };
    });
}

void ClockProposal::answered(const std::vector<ProposedOffset> &proposed) {
    if (isStale_ || parts_.readingOffer.isOpen()) {
        endOfTurn_.ask();
        return;
    }
    tell(proposed);
}

void ClockProposal::finish() {
    look();
    while (job_.isRunning()) {
        job_.finish();
        if (isStale_) {
            look();
        }
    }
}

void ClockProposal::tell(const std::vector<ProposedOffset> &proposed) {
    const auto first =
        std::find_if(proposed.begin(), proposed.end(), [this](const ProposedOffset &one) {
            return !declined_.contains({one.camera, one.proposal.offset});
        });
    if (first == proposed.end()) {
        parts_.quietBar.withdraw(proposalSubject);
        return;
    }
    parts_.quietBar.post(
        {.subject = proposalSubject,
         .head = textOf(*first),
         .text = {},
         .choices = {{translated("shell", "Apply"), [this, one = *first] { take(one); }}},
         .dismissed = [this, one = *first] { declined_.emplace(one.camera, one.proposal.offset); },
         .weight = BarWeight::Offer});
}

/// The photos keep their places until the log is applied: a look at them comes before that.
void ClockProposal::take(const ProposedOffset &proposed) {
    if (!parts_.context.commitEditing()) {
        endOfTurn_.ask(); // the choice has taken the proposal off the bar
        return;
    }
    {
        const UndoGroup group(parts_.context, translated("shell", "Set Camera Clock"));
        if (!proposed.camera.empty()) {
            parts_.clockOffset.setHasOwnClock(proposed.camera, true);
        }
        parts_.clockOffset.setClock(proposed.camera, proposed.proposal.offset);
    }
    taken_.emplace(proposed.camera, proposed.proposal.offset);
    parts_.quietBar.post({.subject = takenSubject,
                          .head = takenHeadOf(proposed),
                          .text = takenTextOf(proposed),
                          .choices = {{translated("shell", "Apply to All"),
                                       [this] { parts_.matcher.applyToAllPictures(); }}},
                          .weight = BarWeight::Answer});
}

/// What was said of it has been done, or holds no longer.
void ClockProposal::forgetTaken() {
    taken_.reset();
    parts_.quietBar.withdraw(takenSubject);
}

} // namespace pinmora
