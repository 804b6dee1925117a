#include "ui/save_dialog.h"

#include "saving/save_outlets.h"
#include "ui/theme.h"
#include "ui/work_bar.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace pinmora {

SaveDialog::SaveDialog(SaveOutlets &save, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          save.saveWindow, std::move(widgetOf), [&save] { save.cancelSaveButton.press(); }, owner) {
    setMinimumWidth(52 * spacing);
    setWindowTitle(tr("Save Photos"));
    QLabel *const doing = addText(Role::Title);
    doing->setAccessibleName(tr("What is being done"));
    bindings_.show(save.saveWhatDoing, doing);
    column()->addWidget(makeWorkBar(save.saveIndicator, bindings_));
    QLabel *const progress = addText(Role::Quiet);
    progress->setAccessibleName(tr("How far it has come"));
    progress->setWordWrap(false);
    bindings_.show(save.saveProgress, progress);
    progress->setMinimumHeight(progress->fontMetrics().height()); // also while there is no text
    auto *cancel = new QPushButton(tr("Cancel"));
    cancel->setToolTip(tr("Begins no further photo; the copies that are made stay"));
    bindings_.tie(save.cancelSaveButton, cancel);
    addButtons({}, {cancel});
}

} // namespace pinmora
