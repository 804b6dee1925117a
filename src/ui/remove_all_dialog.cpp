#include "ui/remove_all_dialog.h"

#include "saving/remove_all_photos.h"
#include "ui/theme.h"

#include <QLabel>
#include <QPushButton>

namespace pinmora {

RemoveAllDialog::RemoveAllDialog(RemoveAllPhotos &command, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          command.removeAllWindow, std::move(widgetOf),
          [&command] { command.cancelButton.press(); }, owner) {
    setMinimumWidth(58 * spacing);
    bindings_.show(command.question, addText(Role::Title));
    addText(std::nullopt,
            tr("The photo files stay where they are; GPS tracks stay in the library. What you have "
               "done to the photos goes with them, and the library is saved without them. Until "
               "you quit, Undo brings them back."));
    auto *remove = new QPushButton(tr("Remove All"));
    setRole(remove, Role::Removal);
    auto *cancel = new QPushButton(tr("Cancel"));
    cancel->setDefault(true);
    setRole(cancel, Role::Default);
    addButtons({remove}, {cancel});
    bindings_.tie(command.removeAllButton, remove);
    bindings_.tie(command.cancelButton, cancel);
}

} // namespace pinmora
