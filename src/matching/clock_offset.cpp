#include "matching/clock_offset.h"

#include "matching/matching_outlets.h"
#include "matching/placing.h"
#include "matching/time_distance.h"
#include "outlets/pointer_script.h"
#include "persistence/context.h"
#include "persistence/undo_group.h"
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
}

void ClockOffset::showStoredOffset() {
    const offset *const stored = outlets_.offsetObj.content();
    outlets_.stepperHour.value.set(stored ? stored->hours().value_or(0) : 0);
    outlets_.stepperMin.value.set(stored ? stored->minutes().value_or(0) : 0);
    outlets_.stepperSec.value.set(stored ? stored->seconds().value_or(0) : 0);
    const int tag = stored && stored->plus().value_or(0) != 0 ? 1 : 0;
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
    step(&offset::setHours, sender);
}

void ClockOffset::stepMin(const Stepper &sender) {
    step(&offset::setMinutes, sender);
}

void ClockOffset::stepSec(const Stepper &sender) {
    step(&offset::setSeconds, sender);
}

void ClockOffset::step(Field field, const Stepper &sender) {
    if (offset *const stored = outlets_.offsetObj.content()) {
        const UndoGroup group(context_, "Step Clock Offset");
        (stored->*field)(sender.value.get());
        stepped.emit();
    }
}

void ClockOffset::changePlusMinu(const Selector &sender) {
    if (offset *const stored = outlets_.offsetObj.content()) {
        const UndoGroup group(context_, "Change Sign of Clock Offset");
        stored->setPlus(sender.selectedTag.get());
        updateShownOffset();
    }
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
    if (updateFields) {
        storeFields(apart);
    }
    stored->setOffset_set(1);
    stored->setPlus(isEarlier ? 0 : 1);
    showCorrectedTime(isEarlier ? taken - apart : taken + apart);

    MapView &map = outlets_.inWizard ? outlets_.webView2 : outlets_.webView1;
    map.evaluate(pointerScript(point->lat().view(), point->lon().view(), zoom));
    placeAt(*photo, *point);
    if (degrees *const shown = outlets_.degreeObj.content()) {
        shown->showPosition(point->lat().view(), point->lon().view());
    }
}

/// The steppers follow the record.
void ClockOffset::storeFields(std::chrono::seconds apart) {
    offset &stored = *outlets_.offsetObj.content();
    stored.setHours(static_cast<std::int32_t>(apart.count() / 3600));
    stored.setMinutes(static_cast<std::int32_t>(apart.count() / 60 % 60));
    stored.setSeconds(static_cast<std::int32_t>(apart.count() % 60));
    outlets_.addRemoveMarker.title.set("Remove Marker");
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
    const std::string text = textFromDate(corrected, shownTimeFormat, zone);
    outlets_.offsetText.text.set(text);
    outlets_.offsetText2.text.set(text);
}

} // namespace pinmora
