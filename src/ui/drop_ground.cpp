#include "ui/drop_ground.h"

#include "ui/icon_label.h"
#include "ui/icons.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <optional>

namespace pinmora {
namespace {

QLabel *centred(const QString &text, Role role, QWidget *parent) {
    auto *const label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    setRole(label, role);
    return label;
}

QPushButton *buttonFor(const DropGround::Choice &choice, std::optional<Role> role,
                       QWidget *parent) {
    auto *const button = new QPushButton(choice.title, parent);
    if (role) {
        setRole(button, *role);
    }
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, choice.act);
    return button;
}

QHBoxLayout *makeButtons(const std::vector<DropGround::Choice> &choices, QWidget *parent) {
    auto *const buttons = new QHBoxLayout;
    buttons->setSpacing(spacing + 2);
    buttons->addStretch();
    std::optional<Role> role = Role::Default;
    for (const DropGround::Choice &choice : choices) {
        buttons->addWidget(buttonFor(choice, role, parent));
        role.reset();
    }
    buttons->addStretch();
    return buttons;
}

} // namespace

DropGround::DropGround(const Parts &parts, QWidget *parent) : QFrame(parent) {
    setRole(this, Role::Content);
    auto *const around = new QVBoxLayout(this);
    around->setContentsMargins(2 * spacing, 2 * spacing, 2 * spacing, 2 * spacing);
    around->addStretch();
    auto *const middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(makeArea(parts), 12);
    middle->addStretch(1);
    around->addLayout(middle);
    around->addStretch();
}

QWidget *DropGround::makeArea(const Parts &parts) {
    auto *const area = new QFrame(this);
    setRole(area, Role::Dashed);
    area->setMaximumWidth(440);
    area->setAccessibleName(parts.title);
    auto *const inside = new QVBoxLayout(area);
    inside->setContentsMargins(2 * spacing, 2 * spacing, 2 * spacing, 2 * spacing);
    inside->setSpacing(spacing);
    const auto addAir = [inside](int height) { // gives way in a small window
        inside->addSpacerItem(
            new QSpacerItem(0, height, QSizePolicy::Minimum, QSizePolicy::Preferred));
    };
    addAir(4 * spacing);
    inside->addWidget(new IconLabel(quietIcon(parts.iconName), 52, area));
    addAir(spacing);
    inside->addWidget(centred(parts.title, Role::Title, area));
    inside->addWidget(centred(parts.words, Role::Quiet, area));
    addAir(spacing);
    inside->addLayout(makeButtons(parts.buttons, area));
    addAir(spacing);
    for (const Choice &link : parts.links) {
        inside->addWidget(buttonFor(link, Role::Link, area), 0, Qt::AlignHCenter);
    }
    addAir(3 * spacing);
    return area;
}

} // namespace pinmora
