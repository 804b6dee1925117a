#include "ui/sheet_redraw.h"

#include "platform/scoped_flag.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

#include <chrono>

namespace pinmora {
namespace {

bool redrawing = false;

/// Qt's dispatcher on GLib delivers sockets' events even where they are excluded. They come again
/// as long as there is something to be read.
class SocketsHeldBack : public QObject {
public:
    SocketsHeldBack() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override {
        return event->type() == QEvent::SockAct || event->type() == QEvent::SockClose;
    }
};

} // namespace

void redrawDuringWork(bool atOnce) {
    using Clock = std::chrono::steady_clock;
    static Clock::time_point last;
    const bool due = atOnce || Clock::now() - last >= std::chrono::seconds(1) / 30.0;
    if (redrawing || !due || !QCoreApplication::instance()) {
        return;
    }
    const ScopedFlag redrawingNow(redrawing);
    const SocketsHeldBack held;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
    last = Clock::now();
}

bool isRedrawingDuringWork() {
    return redrawing;
}

} // namespace pinmora
