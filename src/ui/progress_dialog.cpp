#include "ui/progress_dialog.h"

#include "outlets/progress_sheet.h"
#include "ui/theme.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

namespace pinmora {

namespace {

constexpr int barSteps = 1000;

/// A bar without a range to fill moves to and fro.
void showBar(const ProgressBar &bar, QProgressBar &widget) {
    const double range = bar.maximum.get() - bar.minimum.get();
    const double part = range > 0 ? (bar.value.get() - bar.minimum.get()) / range : 0;
    widget.setRange(0, range > 0 ? barSteps : 0);
    widget.setValue(static_cast<int>(std::clamp(part, 0.0, 1.0) * barSteps));
}

} // namespace

ProgressDialog::ProgressDialog(ProgressSheet &progress, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(progress.progressWindow, std::move(widgetOf), nullptr, owner) {
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setMinimumWidth(52 * spacing);
    bindings_.show(progress.progressTextMain, addText(Role::Title));
    auto *bar = new QProgressBar;
    bar->setTextVisible(false);
    bar->setFixedHeight(6);
    bar->setStyleSheet(QStringLiteral(
        "QProgressBar { background: palette(mid); border: none; border-radius: 3px; }"
        "QProgressBar::chunk { background: palette(highlight); border-radius: 3px; }"));
    bar->setAccessibleName(tr("Progress"));
    column()->addWidget(bar);
    QLabel *const sub = addText(Role::Quiet);
    sub->setWordWrap(false);
    sub->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    bindings_.show(progress.progressTextSub, sub);
    ProgressBar &indicator = progress.progressIndic;
    for (Observable<double> *value : {&indicator.minimum, &indicator.maximum, &indicator.value}) {
        bindings_.watch(*value, [&indicator, bar](double) { showBar(indicator, *bar); });
    }
}

} // namespace pinmora
