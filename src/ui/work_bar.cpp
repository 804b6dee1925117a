#include "ui/work_bar.h"

#include <QCoreApplication>
#include <QProgressBar>

#include <algorithm>

namespace pinmora {
namespace {

constexpr int barSteps = 1000;
constexpr int barHeight = 6;

void showBar(const ProgressBar &bar, QProgressBar &widget) {
    const double range = bar.maximum.get() - bar.minimum.get();
    const double part = range > 0 ? (bar.value.get() - bar.minimum.get()) / range : 0;
    widget.setRange(0, range > 0 ? barSteps : 0);
    widget.setValue(static_cast<int>(std::clamp(part, 0.0, 1.0) * barSteps));
}

} // namespace

QProgressBar *makeWorkBar(ProgressBar &progress, Bindings &bindings) {
    auto *bar = new QProgressBar;
    bar->setTextVisible(false);
    bar->setFixedHeight(barHeight);
    bar->setStyleSheet(QStringLiteral(
        "QProgressBar { background: palette(mid); border: none; border-radius: 3px; }"
        "QProgressBar::chunk { background: palette(highlight); border-radius: 3px; }"));
    bar->setAccessibleName(QCoreApplication::translate("ui", "Progress"));
    for (Observable<double> *value : {&progress.minimum, &progress.maximum, &progress.value}) {
        bindings.watch(*value, [&progress, bar](double) { showBar(progress, *bar); });
    }
    return bar;
}

} // namespace pinmora
