#include "ui/quit_dialog.h"

#include "saving/quit_warning.h"
#include "ui/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pinmora {

QuitDialog::QuitDialog(QuitWarning &warning, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          warning.quitWarning, std::move(widgetOf), [&warning] { warning.cancelButton.press(); },
          owner) {
    setMinimumWidth(64 * spacing);
    addText(Role::Title, tr("Some photos have changes that are not saved"));
    QLabel *const words = addText(std::nullopt);
    bindings_.watch(warning.saveAndQuitButton.enabled, [words](bool canSavePhotos) {
        const QString library = tr("Save Library keeps the list of photos, with all that you have "
                                   "done to them, for the next time.");
        const QString photos = tr("Save Photos writes it into copies of the photos.");
        words->setText((canSavePhotos ? library + u' ' + photos : library) + u' ' +
                       tr("Then quit again."));
    });
    auto *quit = new QPushButton(tr("Quit Without Saving"));
    setRole(quit, Role::Removal);
    auto *cancel = new QPushButton(tr("Cancel"));
    auto *photos = new QPushButton(tr("Save Photos…"));
    auto *library = new QPushButton(tr("Save Library"));
    library->setDefault(true);
    setRole(library, Role::Default);
    addButtons({quit}, {cancel, photos, library});
    bindings_.tie(warning.noSaveButton, quit);
    bindings_.tie(warning.cancelButton, cancel);
    bindings_.tie(warning.saveAndQuitButton, photos);
    bindings_.tie(warning.saveDataButton, library);
}

} // namespace pinmora
