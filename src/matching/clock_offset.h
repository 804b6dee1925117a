#pragma once

#include "matching/clock_turn.h"
#include "outlets/observable.h"
#include "outlets/signal.h"
#include "persistence/change_observer.h"
#include "persistence/undo_observer.h"
#include "platform/date.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

class Context;
class image;
class offset;
struct ClockParts;
struct MatchingOutlets;
struct Selector;
struct Stepper;

/// The camera's clock against the receiver's: how far it is off, as a person steps it or as a photo
/// and a track point that belong together tell it.
///
/// The offset is the record in `offsetObj`; steppers and sign selectors always show what it holds,
/// also when that is taken back, and the corrected time is then the selected photo's. A point or an
/// offset that is deleted leaves its controller.
///
/// A camera can have a clock of its own, beside the one of all others. While a photo of such a
/// camera is the first selected one, the controls show and change its camera's clock.
class ClockOffset : private ChangeObserver, private UndoObserver {
public:
    /// Both must outlive it.
    ClockOffset(Context &context, MatchingOutlets &outlets);
    ~ClockOffset() override;
    ClockOffset(const ClockOffset &) = delete;
    ClockOffset &operator=(const ClockOffset &) = delete;

    /// Sent after a step, and within its undo group: the photo is to be matched anew.
    Signal<> stepped;

    void stepHour(const Stepper &sender);
    void stepMin(const Stepper &sender);
    void stepSec(const Stepper &sender);
    /// Takes the sign over. It shows its effect only with the next step or match.
    void changePlusMinu(const Selector &sender);
    void changeOffset() { updateShownOffset(); }
    /// Nothing: a changed offset shows its effect with the next step or match.
    void updateShownOffset() {}

    /// Derives the offset from the first selected photo and the point in `bestGPS`, so that it
    /// leads from exactly the one to the other, and places the photo at the point. The fields of
    /// hours, minutes and seconds are rewritten only if asked. Nothing happens without a photo with
    /// a date and a point with a time.
    void setNewOffset(bool updateFields);

    /// The camera whose own clock the controls show; "" when it is the clock of all others.
    std::string cameraInHand() const;
    /// The camera whose own clock the photo goes by; "" when that is the clock of all others.
    std::string clockOf(const image &photo) const;
    /// Sets a clock (as from clockOf()) to an offset, normalised; nobody is placed anew.
    void setClock(const std::string &camera, std::chrono::seconds signedOffset);
    /// What a clock is set to.
    std::chrono::seconds clock(const std::string &camera) const;
    /// Gives the camera a clock of its own, which begins as it stands, or takes it away again.
    void setHasOwnClock(const std::string &camera, bool own);

    /// While a clock is being turned, and nothing of it is stored.
    Observable<std::optional<ClockTurn>> turning;
    /// How far the photo's clock is being turned; 0 when it is another one, or none.
    std::chrono::seconds turnOf(const image &photo) const;
    /// The hand lets go: the turn is stored, as one step of undo.
    void endTurn();
    void cancelTurn() { turning.set(std::nullopt); }

    /// Shows a capture time with the offset applied.
    void showCorrectedTime(Date corrected);

private:
    using Field = void (offset::*)(std::optional<std::int32_t>);

    void didChange(Record &record, std::string_view key) override;
    void didDelete(Record &record) override;
    void didUndo(const UndoStep &) override { showSelectedTime(); }
    void didRedo(const UndoStep &) override { showSelectedTime(); }
    void showSelectedTime();
    void connectControls();
    void showStoredOffset();
    ClockParts shownParts() const;
    void step(Field field, std::int32_t ClockParts::*part, const Stepper &sender);
    void storeOwn(const std::string &camera, const ClockParts &parts);
    void storeDerived(std::chrono::seconds apart, bool isEarlier, bool updateFields);
    void storeFields(std::chrono::seconds apart);
    void offerMarkerRemoval();

    Context &context_;
    MatchingOutlets &outlets_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
