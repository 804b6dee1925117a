#pragma once

#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "outlets/map_view.h"
#include "outlets/object_controller.h"
#include "outlets/progress_sheet.h"
#include "outlets/selector.h"
#include "outlets/stepper.h"

namespace pinmora {

class degrees;
class image;
class offset;
class track_part;

/// The controls and lists that the clock offset and the matching read and write. Where two names
/// differ only by a number at the end, the same thing stands in more than one place.
struct MatchingOutlets {
    // Others have their hands in these as well.
    ArrayController<image> &pictureArray;
    ObjectController<degrees> &degreeObj;
    Button &addRemoveMarker; ///< its tag: 1 when a click removes the marker
    MapView &webView1;
    MapView &webView2; ///< the wizard's
    const bool &inWizard;
    ProgressSheet &progress;

    ObjectController<offset> offsetObj{};
    ObjectController<track_part> bestGPS{}; ///< the point chosen last
    Stepper stepperHour{};
    Stepper stepperMin{};
    Stepper stepperSec{};
    Selector plusMinus{}; ///< the tags of its cells: 1 adds the offset, 0 subtracts it
    Selector plusMinus1{};
    Selector plusMinus2{};
    Selector plusMinus3{};
    TextField offsetText{}; ///< the capture time with the offset applied
    TextField offsetText2{};
    Button offsetButton{}; ///< takes the selected photo's position for the known one
    Button offsetButton2{};
    Button matchButton{};
    CheckedField knownLat{}; ///< signed decimal degrees
    CheckedField knownLon{};

    // What the wizard offers once the photos have their places.
    Button nextButtonAppliedAll{};
    Control congrats1{};
    Control congrats2{};
};

} // namespace pinmora
