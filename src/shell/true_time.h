#pragma once

#include "outlets/controls.h"
#include "outlets/signal.h"
#include "outlets/window.h"
#include "platform/date.h"
#include "platform/end_of_turn.h"

#include <vector>

namespace pinmora {

class Matcher;
class image;
struct MatchingOutlets;

/// Sets the camera's clock by one photo whose true time a person knows: it shows a station clock,
/// say.
class TrueTime {
public:
    /// Both must outlive it.
    TrueTime(MatchingOutlets &matching, Matcher &matcher, WorkingWindow workingWindow);
    TrueTime(const TrueTime &) = delete;
    TrueTime &operator=(const TrueTime &) = delete;
    ~TrueTime() = default;

    /// Asks for the time; nothing happens unless exactly one photo is selected, one that tells when
    /// it was taken, and what is half typed is fit.
    void open();
    void setClock();
    void cancel();

    Button openButton; ///< enabled while open() would do something
    Sheet sheet;
    TextField photoName;
    TextField cameraSays;        ///< "8 May 2026 10:03:47"
    Observable<WallClock> taken; ///< by the clocks of the place, what a person enters
    TextField words;             ///< what follows from it
    Button setButton;
    Button cancelButton;

private:
    image *photoInHand() const;
    void showWords();

    MatchingOutlets &matching_;
    Matcher &matcher_;
    WorkingWindow workingWindow_;
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
