#pragma once

#include "outlets/controls.h"
#include "outlets/signal.h"

#include <utility>
#include <vector>

class QAbstractButton;
class QAction;
class QLabel;
class QWidget;

namespace pinmora {

/// Ties widgets to outlets, in both directions, for as long as it lives. A member of the widget
/// that the bound ones belong to; the outlets must outlive it.
class Bindings {
public:
    /// Title (unless it is "", which leaves the widget's own), enabled, visible; a click presses.
    void tie(Button &button, QAbstractButton *widget);
    /// The same, without visibility.
    void tie(Button &button, QAction *action);
    /// The text, and visibility.
    void show(TextField &field, QLabel *label);
    /// Enabled and visible.
    void follow(Control &control, QWidget *widget);

    /// Calls at once with the present value and then with each later one.
    template <class T, class Handler>
    void watch(Observable<T> &value, Handler handler) {
        handler(value.get());
        keep(value.onChange(handler));
    }
    void keep(Connection connection) { connections_.push_back(std::move(connection)); }

private:
    void followVisibility(Control &control, QWidget *widget);

    std::vector<Connection> connections_;
};

} // namespace pinmora
