#include "ui/preferences/address_field.h"

#include "shell/address_preference.h"
#include "ui/field_edit.h"
#include "ui/preferences/explained.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QLabel>
#include <QVBoxLayout>

namespace pinmora {

AddressField::AddressField(AddressPreference &preference, const Texts &texts, QWidget *parent)
    : QWidget(parent), preference_(preference), sentence_(texts.sentence), edit_(new FieldEdit),
      below_(sentence(texts.sentence)) {
    auto *const label = new QLabel(texts.label);
    label->setBuddy(edit_);
    edit_->setAccessibleName(texts.label);
    edit_->setPlaceholderText(texts.example);
    edit_->setRevert([this] {
        const bool hasTyped = preference_.takeBack();
        if (hasTyped) {
            Q_EMIT takenBack();
        }
        return hasTyped;
    });
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(smallGap);
    column->addWidget(label);
    column->addWidget(edit_);
    column->addWidget(below_);
    bindings_.watch(preference.field.text, [this](const std::string &text) {
        if (edit_->text().toStdString() != text) { // or the caret would jump
            edit_->setText(QString::fromStdString(text));
        }
    });
    bindings_.watch(preference.field.problem,
                    [this](const std::string &why) { showProblem(QString::fromStdString(why)); });
    bindings_.watch(preference.field.enabled, [this](bool counts) { setVisible(counts); });
    connect(edit_, &QLineEdit::textEdited, this,
            [this](const QString &text) { preference_.type(text.toStdString()); });
    connect(edit_, &QLineEdit::editingFinished, this, [this] { preference_.takeOver(); });
}

void AddressField::showProblem(const QString &why) {
    edit_->showProblem(why);
    below_->setText(why.isEmpty() ? sentence_ : why);
    below_->setVisible(!below_->text().isEmpty());
    setRole(below_, why.isEmpty() ? Role::Quiet : Role::Problem);
    edit_->setAccessibleDescription(below_->text());
}

bool AddressField::takeOver() {
    return preference_.takeOver();
}

void AddressField::focusEdit() {
    edit_->setFocus(Qt::OtherFocusReason);
    edit_->selectAll();
}

} // namespace pinmora
