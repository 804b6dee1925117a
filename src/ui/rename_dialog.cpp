#include "ui/rename_dialog.h"

#include "platform/notification_centre.h"
#include "saving/renaming.h"
#include "shell/inspector.h"
#include "ui/name_typing.h"
#include "ui/theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace pinmora {

RenameDialog::RenameDialog(RenamingOutlets &outlets, Renaming &renaming,
                           NotificationCentre &notifications, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          outlets.nameChange, std::move(widgetOf), [&renaming] { renaming.cancelNameChange(); },
          owner),
      outlets_(outlets), notifications_(notifications), name_(new QLineEdit),
      selected_(new QPushButton(tr("Rename Selected"))), all_(new QPushButton(tr("Rename All"))) {
    setMinimumWidth(56 * spacing);
    addText(Role::Title, tr("Rename photos"));
    addText(Role::Quiet, tr("They get these names when they are saved. The files that were loaded "
                            "keep theirs."));
    name_->setAccessibleName(tr("New name"));
    name_->setPlaceholderText(tr("New name, without a number"));
    column()->addWidget(name_);
    outcome_ = addText(Role::Quiet);

    auto *original = new QPushButton(tr("Use Original Names"));
    original->setToolTip(tr("Gives all photos the names that they were loaded with"));
    auto *cancel = new QPushButton(tr("Cancel"));
    all_->setToolTip(tr("Numbers all photos by the time when they were taken"));
    addButtons({original}, {cancel, all_, selected_});

    bindings_.tie(outlets.changeName, selected_);
    bindings_.tie(outlets.changeName3, all_);
    connect(original, &QPushButton::clicked, this, [&renaming] { renaming.revertPhotoNames(); });
    connect(cancel, &QPushButton::clicked, this, &RenameDialog::reject);
    connect(name_, &QLineEdit::textEdited, this, [this](const QString &text) {
        tellTyped(*name_, field(), text, notifications_);
        showOutcome();
    });
}

TextField &RenameDialog::field() const {
    if (outlets_.inWizard) {
        return outlets_.newFileName3;
    }
    return outlets_.mainTabs.selectedIdentifier.get() == "1" ? outlets_.newFileName
                                                             : outlets_.newFileName2;
}

void RenameDialog::aboutToShow() {
    TextField &shown = field();
    name_->setText(QString::fromStdString(shown.text.get()));
    beginTyping(*name_);
    const bool anySelected = !outlets_.pictureArray.selectedObjects().empty();
    selected_->setVisible(anySelected);
    QPushButton *const wanted = anySelected ? selected_ : all_;
    for (QPushButton *button : {selected_, all_}) {
        button->setDefault(button == wanted);
    }
    name_->selectAll();
    name_->setFocus();
    // What was typed the last time can be used at once.
    notifications_.post(controlTextDidChange, static_cast<const TextField *>(&shown));
    showOutcome();
}

void RenameDialog::showOutcome() {
    const QString name = name_->text();
    outcome_->setText(
        name.isEmpty()
            ? tr("A number is added to the name: trip becomes trip_1, trip_2, …")
            : tr("They become %1_1, %1_2, … Numbers that are taken are left out.").arg(name));
}

} // namespace pinmora
