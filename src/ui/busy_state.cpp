#include "ui/busy_state.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"

#include <QTimer>

#include <utility>

namespace pinmora {

BusyState::BusyState(Pinmora_AppDelegate &delegate, QObject *parent)
    : QObject(parent), delegate_(delegate) {}

bool BusyState::isLoading() const {
    return delegate_.interface.loadRunning || delegate_.interface.progress.progressWindow.isUp();
}

bool BusyState::isBusy() const {
    return isLoading() || delegate_.subsystems().saveOutlets.saveWindow.isUp();
}

void BusyState::whenIdle(std::function<void()> act) {
    constexpr int lookAgain = 100; // ms
    QTimer::singleShot(isBusy() ? lookAgain : 0, this, [this, act = std::move(act)]() mutable {
        isBusy() ? whenIdle(std::move(act)) : act();
    });
}

} // namespace pinmora
