#include "ui/wizard/choice_card.h"

#include "ui/icon_label.h"
#include "ui/icons.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace pinmora {
namespace {

constexpr int cardIconSide = 32;

} // namespace

ChoiceCard::ChoiceCard(std::string_view iconName, const QString &title, const QString &words,
                       QWidget *parent)
    : QPushButton(parent) {
    setRole(this, Role::Card);
    setAutoDefault(true); // Return presses it, too
    setAccessibleName(title);
    setAccessibleDescription(words);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(3 * spacing - 2, 2 * spacing, 3 * spacing, 2 * spacing);
    row->setSpacing(2 * spacing + smallGap);
    row->addWidget(new IconLabel(accentIcon(iconName), cardIconSide));
    auto *const column = new QVBoxLayout;
    column->setSpacing(smallGap / 2);
    column->addStretch();
    for (const auto &[text, role] :
         {std::pair(title, Role::Strong), std::pair(words, Role::Quiet)}) {
        auto *const label = new QLabel(text);
        label->setWordWrap(true);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        setRole(label, role);
        column->addWidget(label);
    }
    column->addStretch();
    row->addLayout(column, 1);
}

// A push button knows of its own text alone.

QSize ChoiceCard::sizeHint() const {
    return layout()->sizeHint();
}

QSize ChoiceCard::minimumSizeHint() const {
    return layout()->minimumSize();
}

} // namespace pinmora
