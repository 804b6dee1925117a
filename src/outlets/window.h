#pragma once

#include "outlets/observable.h"
#include "outlets/signal.h"

#include <functional>
#include <string>

namespace pinmora {

struct Window {
    Observable<bool> visible{false};
    Observable<std::string> title{"Pinmora"};
    /// Asks for the window to come before all others and to take the keyboard.
    Signal<> fronted;

    void makeKeyAndOrderFront() {
        visible.set(true);
        fronted.emit();
    }
    void close() { visible.set(false); }
};

/// Which window a person is working in; asked anew each time a sheet is put up.
using WorkingWindow = std::function<Window &()>;

/// A dialog that hangs from a window and keeps it busy until it ends.
class Sheet {
public:
    /// The window that the sheet hangs from; null while it is not up.
    const Observable<Window *> &host() const { return host_; }
    Observable<Window *> &host() { return host_; }
    bool isUp() const { return host_.get() != nullptr; }

    void begin(Window &window) { host_.set(&window); }
    /// Nothing happens when the sheet is not up.
    void end() { host_.set(nullptr); }

    /// Asks for the sheet to be drawn at once: long work on the main thread keeps the event loop
    /// from doing it.
    void display() const { displayed.emit(); }
    void makeKey() const { madeKey.emit(); }

    Signal<> displayed;
    Signal<> madeKey;

private:
    Observable<Window *> host_;
};

} // namespace pinmora
