#pragma once

#include "matching/clock_offset.h"
#include "matching/library.h"
#include "matching/matcher.h"
#include "matching/matching_outlets.h"
#include "persistence/undo_manager.h"
#include "store/degrees.h"
#include "store/entity_array.h"
#include "store/image.h"
#include "store/offset.h"

namespace pinmora {

/// What a person has in front of them: a library with one photo, taken at noon and selected, and
/// the controls around it.
struct Desk : PointLibrary {
    offset &stored = context.insert<offset>();
    degrees &shownDegrees = context.insert<degrees>();
    image &photo = addPhoto("12:00:00");
    Date noon = *photo.date();

    EntityArray<image> pictureArray{context};
    ObjectController<degrees> degreeObj;
    Button addRemoveMarker;
    MapView webView1;
    MapView webView2;
    bool inWizard = false;
    Window window;
    ProgressSheet progress{[this]() -> Window & { return window; }};
    MatchingOutlets outlets{.pictureArray = pictureArray,
                            .degreeObj = degreeObj,
                            .addRemoveMarker = addRemoveMarker,
                            .webView1 = webView1,
                            .webView2 = webView2,
                            .inWizard = inWizard,
                            .progress = progress};
    UndoManager undoManager{context};
    ClockOffset clockOffset{context, outlets};
    Matcher matcher{context, notifications, clockOffset, outlets};

    std::string scripts; ///< "1:" or "2:" for the map view, then the script
    Connection main = webView1.scripts.connect([this](auto &script) { scripts += "1:" + script; });
    Connection wizard =
        webView2.scripts.connect([this](auto &script) { scripts += "2:" + script; });

    Desk() {
        pictureArray.select(&photo);
        outlets.offsetObj.setContent(&stored);
        degreeObj.setContent(&shownDegrees);
        context.commitChanges();
        undoManager.removeAllActions();
    }

    /// Taken on the 12th of May 2008.
    image &addPhoto(const std::string &time) {
        auto &added = context.insert<image>();
        added.setDate("2008:05:12 " + time);
        added.setHasChangesFalse();
        return added;
    }

    void setOffset(int plus, int hours, int minutes, int seconds) {
        stored.setPlus(plus);
        stored.setHours(hours);
        stored.setMinutes(minutes);
        stored.setSeconds(seconds);
    }

    /// "+1:02:03", as the record has it.
    std::string storedOffset() const {
        return (stored.plus().value_or(0) == 0 ? "-" : "+") + clock(stored.hours().value_or(0),
                                                                    stored.minutes().value_or(0),
                                                                    stored.seconds().value_or(0));
    }
    /// The same as the steppers and sign selectors show it, "?" where those do not agree.
    std::string steppedOffset() const {
        std::string sign;
        for (const Selector *selector :
             {&outlets.plusMinus, &outlets.plusMinus1, &outlets.plusMinus2, &outlets.plusMinus3}) {
            const char *const one = selector->selectedTag.get() == 0 ? "-" : "+";
            sign = sign.empty() || sign == one ? one : "?";
        }
        return sign + clock(outlets.stepperHour.value.get(), outlets.stepperMin.value.get(),
                            outlets.stepperSec.value.get());
    }

    /// Latitude, longitude, altitude and zoom of a photo, "-" for no value.
    static std::string placeOf(const image &placed) {
        const auto shown = [](const Text &text) {
            return text.hasValue() ? text.string() : std::string("-");
        };
        return shown(placed.lat()) + " " + shown(placed.lon()) + " " + shown(placed.alt()) + " " +
               (placed.zoom() ? std::to_string(*placed.zoom()) : "-");
    }

private:
    static std::string clock(int hours, int minutes, int seconds) {
        return std::to_string(hours) + ":" + std::to_string(minutes) + ":" +
               std::to_string(seconds);
    }
};

} // namespace pinmora
