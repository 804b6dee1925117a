#pragma once

#include "outlets/observable.h"
#include "outlets/signal.h"

#include <string>

namespace pinmora {

/// What all controls have.
struct Control {
    Observable<bool> enabled{true};
    Observable<bool> visible{true};
    int tag = 0;
};

/// A text that is shown and perhaps edited (UTF-8).
struct TextField : Control {
    Observable<std::string> text;
};

/// A field whose text can be unfit.
struct CheckedField : TextField {
    /// Why the text cannot be taken over, as a sentence; "" when nothing is wrong.
    Observable<std::string> problem;
};

struct Button : Control {
    Observable<std::string> title;
    Signal<> pressed;

    /// What a click does: nothing while the button is disabled.
    void press() const {
        if (enabled.get()) {
            pressed.emit();
        }
    }
};

/// A box that a person ticks.
struct CheckBox : Control {
    Observable<std::string> title;
    Observable<bool> on;
    Signal<> clicked;

    /// What a click does: nothing while the box is disabled.
    void click() {
        if (enabled.get()) {
            on.set(!on.get());
            clicked.emit();
        }
    }
};

/// How far long work has come, between `minimum` and `maximum`.
struct ProgressBar : Control {
    Observable<double> minimum{0};
    Observable<double> maximum{1};
    Observable<double> value{0};
    Observable<bool> animating{false};

    void incrementBy(double amount) { value.set(value.get() + amount); }
};

} // namespace pinmora
