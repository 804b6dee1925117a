#include "ui/wizard/wizard_bar.h"

#include "matching/matching_outlets.h"
#include "shell/wizard.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace pinmora {
namespace {

QPushButton *makeButton(const QString &title, Role role, QWidget *parent) {
    auto *const button = new QPushButton(title, parent);
    setRole(button, role);
    button->setMinimumSize(10 * spacing, 4 * spacing);
    button->setAutoDefault(true); // Return presses it, too
    return button;
}

} // namespace

WizardBar::WizardBar(WizardOutlets &outlets, MatchingOutlets &matching, QWidget *parent)
    : QFrame(parent) {
    setRole(this, Role::Footer);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(3 * spacing, spacing + smallGap, 3 * spacing, spacing + smallGap);
    row->setSpacing(spacing + 2);

    auto *const dontShow = new QCheckBox(tr("Do not show the wizard at start"), this);
    setRole(dontShow, Role::Quiet);
    bindings_.follow(outlets.dontShowWizardButton, dontShow);
    bindings_.watch(outlets.dontShowWizardButton.on,
                    [dontShow](bool on) { dontShow->setChecked(on); });
    connect(dontShow, &QCheckBox::clicked, this,
            [&box = outlets.dontShowWizardButton] { box.click(); });

    auto *const back = makeButton(tr("&Back"), Role::Plain, this);
    bindings_.tie(outlets.backButton, back);
    auto *const next = makeButton(tr("&Next"), Role::Default, this);
    bindings_.tie(outlets.nextButton, next);
    auto *const save = makeButton(tr("&Save Photos…"), Role::Default, this);
    save->setToolTip(tr("Saves tagged copies of the photos; the originals stay as they are"));
    bindings_.tie(matching.nextButtonAppliedAll, save);
    bindings_.watch(outlets.nextButton.visible, [save](bool goesOn) { save->setVisible(!goesOn); });

    row->addWidget(dontShow);
    row->addStretch();
    row->addWidget(back);
    row->addWidget(next);
    row->addWidget(save);
}

} // namespace pinmora
