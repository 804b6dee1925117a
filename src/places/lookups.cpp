#include "places/lookups.h"

#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "places/soap_envelope.h"
#include "store/image.h"

#include <utility>
#include <variant>

namespace pinmora {

namespace {

PositionTexts positionOf(const image &photo) {
    return {photo.lat().string(), photo.lon().string()};
}

bool isCoordinate(std::string_view key) {
    return key == "lat" || key == "lon";
}

std::array<Text, 3> namesOf(const image &photo) {
    return {photo.city(), photo.prov(), photo.country()};
}

/// Names that a person has typed meanwhile stay, and so does what the answer does not name.
void writeNames(image &photo, const std::array<Text, 3> &held, const PlaceAnswer &answer) {
    static constexpr std::array setters{&image::setCity, &image::setProv, &image::setCountry};
    const std::array<Text, 3> now = namesOf(photo);
    for (std::size_t i = 0; i < setters.size(); ++i) {
        if (answer.names[i] && now[i] == held[i]) {
            (photo.*setters[i])(*answer.names[i]);
        }
    }
    if (answer.names[0] && now[0] == held[0] && answer.distance) {
        photo.setPlace_distance(answer.distance);
    }
}

} // namespace

PlaceNames::Lookups::Lookups(Context &context, FindService findService, PlaceLimits limits,
                             Observable<std::size_t> &awaited)
    : context_(context), awaited_(awaited),
      queue_(std::move(findService), limits,
             [this](RequestQueue::Number number, const PlaceOutcome &outcome) {
                 ended(number, outcome);
             }) {
    context_.addObserver(*this, {.entity = &image::description()});
    if (UndoManager *const undo = context_.undoManager()) {
        undo->addObserver(*this);
    }
}

PlaceNames::Lookups::~Lookups() {
    if (UndoManager *const undo = context_.undoManager()) {
        undo->removeObserver(*this);
    }
    context_.removeObserver(*this);
}

void PlaceNames::Lookups::lookUp(image &photo) {
    cancel(photo);
    if (enabled_ && canBeAsked(positionOf(photo))) {
        UndoManager *const undo = context_.undoManager();
        ask(photo, undo ? undo->currentStep() : 0, namesOf(photo));
    }
    countAwaited();
}

void PlaceNames::Lookups::ask(image &photo, std::uint64_t step, const Names &held) {
    const RequestQueue::Number number = queue_.add(positionOf(photo));
    lookups_[&photo] = {number, step, held};
    photos_[number] = &photo;
    if (step != 0) {
        unanswered_[step][&photo] = held;
    }
}

void PlaceNames::Lookups::askAgain(image &photo, std::uint64_t step) {
    if (enabled_ && !photo.isDeleted() && !lookups_.contains(&photo) &&
        canBeAsked(positionOf(photo))) {
        const Names held = unanswered_[step].try_emplace(&photo, namesOf(photo)).first->second;
        ask(photo, step, held);
    }
}

void PlaceNames::Lookups::cancel(image &photo) {
    if (const auto lookup = lookups_.extract(&photo); !lookup.empty()) {
        photos_.erase(lookup.mapped().number);
        queue_.cancel(lookup.mapped().number);
    }
}

void PlaceNames::Lookups::setEnabled(bool enabled) {
    enabled_ = enabled;
    if (!enabled) {
        lookups_.clear();
        photos_.clear();
        queue_.cancelAll();
        countAwaited();
    }
}

void PlaceNames::Lookups::ended(RequestQueue::Number number, const PlaceOutcome &outcome) {
    image &photo = *photos_.extract(number).mapped();
    const Lookup lookup = std::move(lookups_.extract(&photo).mapped());
    if (outcome.answer) {
        write(photo, lookup, *outcome.answer);
    }
    countAwaited();
}

/// A step that is not there any more has been forgotten together with what could be taken back.
void PlaceNames::Lookups::write(image &photo, const Lookup &lookup, const PlaceAnswer &answer) {
    UndoManager *const undo = context_.undoManager();
    if (undo) {
        if (const auto rest = unanswered_.find(lookup.step); rest != unanswered_.end()) {
            rest->second.erase(&photo);
            if (rest->second.empty()) {
                unanswered_.erase(rest);
            }
        }
        if (!undo->beginJoining(lookup.step)) {
            return;
        }
    }
    writeNames(photo, lookup.held, answer);
    if (undo) {
        undo->endJoining();
    }
}

void PlaceNames::Lookups::didChange(Record &record, std::string_view key) {
    auto &photo = static_cast<image &>(record);
    if (isCoordinate(key) && !photo.lat_and_lon()) {
        cancel(photo);
        countAwaited();
    }
}

void PlaceNames::Lookups::didDelete(Record &record) {
    auto &photo = static_cast<image &>(record);
    if (const auto lookup = lookups_.find(&photo); lookup != lookups_.end()) {
        if (lookup->second.step != 0) {
            deleted_[photo.serial()] = lookup->second.step;
        }
        cancel(photo);
        countAwaited();
    }
}

/// Values may still be on their way back.
void PlaceNames::Lookups::didInsert(Record &record) {
    if (deleted_.contains(record.serial())) {
        broughtBack_.push_back(static_cast<image *>(&record));
    }
}

/// Positions that were taken back, or done again, are not those that names were asked for.
void PlaceNames::Lookups::follow(const UndoStep &step) {
    for (const UndoStep::Run &run : step.runs()) {
        if (const auto *changes = std::get_if<UndoStep::Changes>(&run)) {
            for (const ValueChange &change : *changes) {
                if (&change.record->entity() == &image::description() &&
                    isCoordinate(change.property->name)) {
                    cancel(static_cast<image &>(*change.record));
                }
            }
        }
    }
    for (image *photo : std::exchange(broughtBack_, {})) {
        askAgain(*photo, deleted_.extract(photo->serial()).mapped());
    }
    countAwaited();
}

void PlaceNames::Lookups::didRedo(const UndoStep &step) {
    follow(step);
    if (const auto found = unanswered_.find(step.id); found != unanswered_.end()) {
        const auto photos = found->second;
        for (const auto &[photo, held] : photos) {
            askAgain(*photo, step.id);
        }
        countAwaited();
    }
}

void PlaceNames::Lookups::didChangeHistory() {
    const UndoManager *const undo = context_.undoManager();
    if (lookups_.empty() && undo && !undo->canUndo() && !undo->canRedo()) {
        unanswered_.clear();
        deleted_.clear();
    }
}

} // namespace pinmora
