#include "matching/clock_offset.h"

#include "matching/matching_outlets.h"
#include "matching/placing.h"
#include "matching/time_distance.h"
#include "outlets/pointer_script.h"
#include "persistence/context.h"
#include "persistence/undo_group.h"
#include "platform/translation.h"
#include "store/calendar_formats.h"
#include "store/degrees.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track_part.h"

#include <cstdint>

namespace pinmora {

ClockOffset::ClockOffset(Context &context, MatchingOutlets &outlets)
    : context_(context), outlets_(outlets) {
    outlets.stepperHour.maximum = 999'999;
    for (Stepper *stepper : {&outlets.stepperMin, &outlets.stepperSec}) {
        stepper->maximum = 59;
        stepper->wraps = true;
    }
    connectControls();
    context.addObserver(*this, {.entity = &offset::description()});
    context.addObserver(*this, {.entity = &track_part::description(), .values = false});
    if (UndoManager *undo = context.undoManager()) {
        undo->addObserver(*this);
    }
    showStoredOffset();
}

ClockOffset::~ClockOffset() {
    context_.removeObserver(*this);
    if (UndoManager *undo = context_.undoManager()) {
        undo->removeObserver(*this);
    }
}

void ClockOffset::connectControls() {
    const auto onStep = [this](Stepper &stepper, void (ClockOffset::*action)(const Stepper &)) {
        connections_.push_back(
            stepper.stepped.connect([this, &stepper, action] { (this->*action)(stepper); }));
    };
    onStep(outlets_.stepperHour, &ClockOffset::stepHour);
    onStep(outlets_.stepperMin, &ClockOffset::stepMin);
    onStep(outlets_.stepperSec, &ClockOffset::stepSec);
    for (Selector *selector :
         {&outlets_.plusMinus, &outlets_.plusMinus1, &outlets_.plusMinus2, &outlets_.plusMinus3}) {
        connections_.push_back(
            selector->chosen.connect([this, selector] { changePlusMinu(*selector); }));
    }
    connections_.push_back(outlets_.offsetObj.onChange([this](offset *) { showStoredOffset(); }));
    connections_.push_back(
        outlets_.pictureArray.selectionChanged.connect([this] { showStoredOffset(); }));
}

std::string ClockOffset::clockOf(const image &photo) const {
    const offset *const stored = outlets_.offsetObj.content();
    const bool isOwn = stored && stored->cameraOffsets().find(photo.camera().view());
    return isOwn ? photo.camera().string() : std::string();
}

std::string ClockOffset::cameraInHand() const {
    const image *const photo = outlets_.pictureArray.firstSelectedObject();
    return photo ? clockOf(*photo) : std::string();
}

ClockParts ClockOffset::shownParts() const {
    const offset *const stored = outlets_.offsetObj.content();
    if (!stored) {
        return {};
    }
    const ClockParts *const own = stored->cameraOffsets().find(cameraInHand());
    return own ? *own : stored->parts();
}

void ClockOffset::showStoredOffset() {
    const ClockParts shown = shownParts();
    outlets_.stepperHour.value.set(shown.hours);
    outlets_.stepperMin.value.set(shown.minutes);
    outlets_.stepperSec.value.set(shown.seconds);
    const int tag = shown.plus ? 1 : 0;
    for (Selector *selector :
         {&outlets_.plusMinus, &outlets_.plusMinus1, &outlets_.plusMinus2, &outlets_.plusMinus3}) {
        selector->selectedTag.set(tag);
    }
}

void ClockOffset::didChange(Record &record, std::string_view) {
    if (&record == outlets_.offsetObj.content()) {
        showStoredOffset();
    }
}

void ClockOffset::didDelete(Record &record) {
    if (&record == outlets_.offsetObj.content()) {
        outlets_.offsetObj.setContent(nullptr);
    }
    if (&record == outlets_.bestGPS.content()) {
        outlets_.bestGPS.setContent(nullptr);
    }
}

void ClockOffset::stepHour(const Stepper &sender) {
    step(&offset::setHours, &ClockParts::hours, sender);
}

void ClockOffset::stepMin(const Stepper &sender) {
    step(&offset::setMinutes, &ClockParts::minutes, sender);
}

void ClockOffset::stepSec(const Stepper &sender) {
    step(&offset::setSeconds, &ClockParts::seconds, sender);
}

void ClockOffset::step(Field field, std::int32_t ClockParts::*part, const Stepper &sender) {
    offset *const stored = outlets_.offsetObj.content();
    if (!stored) {
        return;
    }
    const UndoGroup group(context_, translated("matching", "Step Clock Offset"));
    if (const std::string camera = cameraInHand(); !camera.empty()) {
        ClockParts parts = shownParts();
        parts.*part = sender.value.get();
        storeOwn(camera, parts);
    } else {
        (stored->*field)(sender.value.get());
    }
    stepped.emit();
}

void ClockOffset::changePlusMinu(const Selector &sender) {
    offset *const stored = outlets_.offsetObj.content();
    if (!stored) {
        return;
    }
    const UndoGroup group(context_, translated("matching", "Change Sign of Clock Offset"));
    if (const std::string camera = cameraInHand(); !camera.empty()) {
        ClockParts parts = shownParts();
        parts.plus = sender.selectedTag.get() != 0;
        storeOwn(camera, parts);
    } else {
        stored->setPlus(sender.selectedTag.get());
    }
    updateShownOffset();
}

void ClockOffset::storeOwn(const std::string &camera, const ClockParts &parts) {
    offset &stored = *outlets_.offsetObj.content();
    CameraOffsets own = stored.cameraOffsets();
    own.set(camera, parts);
    stored.setCamera_offsets(own.text());
}

std::chrono::seconds ClockOffset::clock(const std::string &camera) const {
    const offset *const stored = outlets_.offsetObj.content();
    return stored ? stored->signedOffsetFor(camera) : std::chrono::seconds{};
}

void ClockOffset::setClock(const std::string &camera, std::chrono::seconds signedOffset) {
    offset *const stored = outlets_.offsetObj.content();
    if (!stored) {
        return;
    }
    const UndoGroup group(context_, translated("matching", "Set Camera Clock"));
    const ClockParts parts = ClockParts::of(signedOffset);
    if (camera.empty()) {
        stored->setParts(parts);
    } else {
        storeOwn(camera, parts);
    }
    showSelectedTime();
}

void ClockOffset::setHasOwnClock(const std::string &camera, bool own) {
    offset *const stored = outlets_.offsetObj.content();
    if (!stored || own == (stored->cameraOffsets().find(camera) != nullptr)) {
        return;
    }
    const UndoGroup group(context_, own ? translated("matching", "Give Camera Its Own Clock")
                                        : translated("matching", "Use Common Clock"));
    CameraOffsets offsets = stored->cameraOffsets();
    if (own) {
        offsets.set(camera, stored->parts());
    } else {
        offsets.erase(camera);
    }
    stored->setCamera_offsets(offsets.text());
    showSelectedTime();
}

std::chrono::seconds ClockOffset::turnOf(const image &photo) const {
    const std::optional<ClockTurn> &turn = turning.get();
    return turn && turn->camera == clockOf(photo) ? turn->by : std::chrono::seconds{};
}

void ClockOffset::endTurn() {
    const std::optional<ClockTurn> turn = turning.get();
    if (turn && turn->by.count() != 0) {
        const UndoGroup group(context_, translated("matching", "Turn Camera Clock"));
        setClock(turn->camera, clock(turn->camera) + turn->by);
    }
    turning.set(std::nullopt);
}

void ClockOffset::setNewOffset(bool updateFields) {
    const track_part *const point = outlets_.bestGPS.content();
    image *const photo = outlets_.pictureArray.firstSelectedObject();
    offset *const stored = outlets_.offsetObj.content();
    if (!point || !photo || !stored || !point->time() || !photo->date()) {
        return;
    }
    const int zoom = photo->zoom().value_or(0);
    const Date taken = *photo->date();
    const bool isEarlier = *point->time() < taken;
    const std::chrono::seconds apart(wholeSecondsApart(*point->time(), taken));
    storeDerived(apart, isEarlier, updateFields);
    showCorrectedTime(isEarlier ? taken - apart : taken + apart);

    MapView &map = outlets_.inWizard ? outlets_.webView2 : outlets_.webView1;
    map.evaluate(pointerScript(point->lat().view(), point->lon().view(), zoom));
    placeAt(*photo, *point, correctedTime(*photo, *stored));
    if (degrees *const shown = outlets_.degreeObj.content()) {
        shown->showPosition(point->lat().view(), point->lon().view());
    }
}

/// A camera's own clock stays as it was stepped.
void ClockOffset::storeDerived(std::chrono::seconds apart, bool isEarlier, bool updateFields) {
    offset &stored = *outlets_.offsetObj.content();
    if (updateFields) {
        offerMarkerRemoval();
    }
    if (const std::string camera = cameraInHand(); !camera.empty()) {
        if (updateFields) {
            storeOwn(camera, ClockParts::of(isEarlier ? -apart : apart));
        }
        return;
    }
    if (updateFields) {
        storeFields(apart);
    }
    stored.setOffset_set(1);
    stored.setPlus(isEarlier ? 0 : 1);
}

/// The steppers follow the record.
void ClockOffset::storeFields(std::chrono::seconds apart) {
    offset &stored = *outlets_.offsetObj.content();
    const ClockParts parts = ClockParts::of(apart);
    stored.setHours(parts.hours);
    stored.setMinutes(parts.minutes);
    stored.setSeconds(parts.seconds);
}

void ClockOffset::offerMarkerRemoval() {
    outlets_.addRemoveMarker.title.set(translated("matching", "Remove Marker"));
    outlets_.addRemoveMarker.tag = 1;
    outlets_.offsetButton.enabled.set(true);
}

/// Only one photo's time against a log tells anything.
void ClockOffset::showSelectedTime() {
    const auto &selected = outlets_.pictureArray.selectedObjects();
    const offset *const stored = outlets_.offsetObj.content();
    if (selected.size() == 1 && selected.front()->date() && stored &&
        context_.count<track_part>() > 0) {
        showCorrectedTime(*correctedTime(*selected.front(), *stored));
    } else {
        outlets_.offsetText.text.set("");
        outlets_.offsetText2.text.set("");
    }
}

void ClockOffset::showCorrectedTime(Date corrected) {
    LocalZone zone;
    const std::string text = localizedTextFromDate(corrected, shownTimeFormat, zone);
    outlets_.offsetText.text.set(text);
    outlets_.offsetText2.text.set(text);
}

} // namespace pinmora
