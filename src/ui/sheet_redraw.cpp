#include "ui/sheet_redraw.h"

#include "platform/scoped_flag.h"

#include <QCoreApplication>

#include <chrono>

namespace pinmora {

void redrawDuringWork(bool atOnce) {
    using Clock = std::chrono::steady_clock;
    static bool drawing = false;
    static Clock::time_point last;
    const bool due = atOnce || Clock::now() - last >= std::chrono::seconds(1) / 30.0;
    if (drawing || !due || !QCoreApplication::instance()) {
        return;
    }
    const ScopedFlag drawingNow(drawing);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
    last = Clock::now();
}

} // namespace pinmora
