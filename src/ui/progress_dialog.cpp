#include "ui/progress_dialog.h"

#include "outlets/progress_sheet.h"
#include "ui/theme.h"
#include "ui/work_bar.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace pinmora {

ProgressDialog::ProgressDialog(ProgressSheet &progress, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(progress.progressWindow, std::move(widgetOf), nullptr, owner) {
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setMinimumWidth(52 * spacing);
    bindings_.show(progress.progressTextMain, addText(Role::Title));
    column()->addWidget(makeWorkBar(progress.progressIndic, bindings_));
    QLabel *const sub = addText(Role::Quiet);
    sub->setWordWrap(false);
    sub->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    bindings_.show(progress.progressTextSub, sub);
}

} // namespace pinmora
