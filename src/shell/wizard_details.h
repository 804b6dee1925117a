#pragma once

#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "persistence/change_observer.h"
#include "platform/end_of_turn.h"

#include <array>
#include <vector>

namespace pinmora {

class Context;
class image;

/// What the wizard tells of the selected photo: name, time, corrected time and position, each with
/// its caption. It follows the selection and what is written to the photo later, also by undo.
class WizardDetails : private ChangeObserver {
public:
    /// All must outlive it. `offsetText2` is where the corrected time is shown.
    WizardDetails(Context &context, ArrayController<image> &pictureArray, TextField &offsetText2);
    ~WizardDetails() override;
    WizardDetails(const WizardDetails &) = delete;
    WizardDetails &operator=(const WizardDetails &) = delete;

    TextField pictureData2; ///< the photo's name; of several, how many they are
    TextField time2;
    TextField tiemWithOffset2; ///< the capture time with the offset applied
    TextField latitude2;
    TextField longitude2;
    Control timeLabel2;
    Control tiemWithOffsetLabel2;
    Control latitudeLabel2;
    Control longitudeLabel2;

    /// In the order in which they are shown and hidden.
    std::array<Control *, 9> controls() {
        return {&pictureData2,   &time2,      &tiemWithOffset2,      &latitude2,
                &longitude2,     &timeLabel2, &tiemWithOffsetLabel2, &latitudeLabel2,
                &longitudeLabel2};
    }

private:
    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &) override {}
    void didDelete(Record &) override { endOfTurn_.ask(); }
    void showSelection();

    Context &context_;
    ArrayController<image> &pictureArray_;
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
