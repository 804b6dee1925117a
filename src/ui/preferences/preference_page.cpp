#include "ui/preferences/preference_page.h"

#include "ui/preferences/explained.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

namespace pinmora {
namespace {

constexpr int widestText = 72 * spacing; // longer lines are hard to read

} // namespace

PreferencePage::PreferencePage(const QString &title, QWidget *parent)
    : QScrollArea(parent), column_(nullptr) {
    auto *const content = new QWidget;
    content->setMaximumWidth(widestText);
    auto *const whole = new QVBoxLayout(content);
    whole->setContentsMargins(2 * spacing, 0, 2 * spacing, 2 * spacing);
    auto *const name = new QLabel(title);
    setRole(name, Role::Title);
    whole->addWidget(name);
    column_ = new QVBoxLayout;
    column_->setSpacing(spacing);
    whole->addLayout(column_);
    whole->addStretch();
    setAccessibleName(title);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    // The ground is that of the window.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

bool PreferencePage::takeOver() {
    return std::all_of(fields_.begin(), fields_.end(),
                       [](AddressField *field) { return field->takeOver(); });
}

void PreferencePage::turnToUnfit() {
    for (AddressField *const field : fields_) {
        if (!field->takeOver()) {
            field->focusEdit();
            ensureWidgetVisible(field);
            return;
        }
    }
}

void PreferencePage::addHeading(const QString &text) {
    auto *const heading = new QLabel(text);
    setRole(heading, Role::Heading);
    heading->setContentsMargins(0, spacing + smallGap, 0, 0);
    column_->addWidget(heading);
}

void PreferencePage::addSentence(const QString &text) {
    column_->addWidget(sentence(text));
}

void PreferencePage::addWidget(QWidget *widget) {
    column_->addWidget(widget);
}

void PreferencePage::addLayout(QLayout *layout) {
    column_->addLayout(layout);
}

void PreferencePage::addBox(Preference<bool> &preference, const QString &text,
                            const QString &sentence) {
    auto *const box = new QCheckBox(text);
    column_->addLayout(explained(box, sentence));
    bindings_.watch(preference.value(), [box](bool on) { box->setChecked(on); });
    connect(box, &QCheckBox::toggled, this, [&preference](bool on) { preference.choose(on); });
}

ChoiceList *PreferencePage::addChoices(AddressPreference &preference, const QString &name,
                                       const QList<ChoiceList::Choice> &choices,
                                       const AddressField::Texts &field) {
    auto *const list = new ChoiceList(name, choices);
    addWidget(list);
    addField(*list, preference, field);
    bindings_.watch(preference.choice,
                    [list](std::size_t choice) { list->setChoice(static_cast<int>(choice)); });
    connect(list, &ChoiceList::chosen, this,
            [&preference](int chosen) { preference.choose(static_cast<std::size_t>(chosen)); });
    return list;
}

void PreferencePage::addField(ChoiceList &list, AddressPreference &preference,
                              const AddressField::Texts &texts) {
    auto *const field = new AddressField(preference, texts, &list); // it shows itself
    list.addToLast(field);
    fields_.append(field);
    connect(field, &AddressField::takenBack, &list, &ChoiceList::focusChoice);
}

} // namespace pinmora
