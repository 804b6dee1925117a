#include "ui/preferences/choice_list.h"

#include "ui/preferences/explained.h"
#include "ui/theme.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

namespace pinmora {

ChoiceList::ChoiceList(const QString &name, const QList<Choice> &choices, QWidget *parent)
    : QWidget(parent), buttons_(new QButtonGroup(this)), column_(new QVBoxLayout(this)) {
    setAccessibleName(name);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(spacing);
    for (const Choice &choice : choices) {
        auto *const button = new QRadioButton(choice.text);
        buttons_->addButton(button, static_cast<int>(buttons_->buttons().size()));
        column_->addLayout(explained(button, choice.sentence));
    }
    connect(buttons_, &QButtonGroup::idClicked, this, &ChoiceList::chosen);
}

void ChoiceList::setChoice(int choice) {
    buttons_->button(choice)->setChecked(true);
    for (QAbstractButton *const button : buttons_->buttons()) { // Tab leads to what is chosen
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void ChoiceList::focusChoice() {
    buttons_->checkedButton()->setFocus();
}

void ChoiceList::addToLast(QWidget *widget) {
    auto *const row = new QVBoxLayout;
    row->setContentsMargins(besideMark, 0, 0, 0);
    row->addWidget(widget);
    column_->addLayout(row);
}

} // namespace pinmora
