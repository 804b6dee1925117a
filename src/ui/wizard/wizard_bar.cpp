#include "ui/wizard/wizard_bar.h"

#include "matching/matching_outlets.h"
#include "shell/library_counts.h"
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
    button->setAutoDefault(true); // Return presses it, too
    return button;
}

} // namespace

WizardBar::WizardBar(WizardOutlets &outlets, MatchingOutlets &matching, LibraryCounts &counts,
                     QWidget *parent)
    : QFrame(parent) {
    setObjectName(QStringLiteral("wizardBar")); // the style sheet makes its buttons large
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
    next_ = makeButton(tr("&Next"), Role::Default, this);
    bindings_.tie(outlets.nextButton, next_);

    row->addWidget(dontShow);
    row->addStretch();
    row->addWidget(back);
    row->addWidget(next_);
    addSave(*row, outlets, matching, counts);
}

void WizardBar::focusNext() {
    next_->setFocus(Qt::OtherFocusReason);
}

/// While there is a log that has not been applied, that comes first.
void WizardBar::addSave(QHBoxLayout &row, WizardOutlets &outlets, MatchingOutlets &matching,
                        LibraryCounts &counts) {
    auto *const save = makeButton(tr("&Save Photos…"), Role::Default, this);
    save->setToolTip(tr("Saves tagged copies of the photos; the originals stay as they are"));
    bindings_.tie(matching.nextButtonAppliedAll, save);
    bindings_.watch(outlets.nextButton.visible, [save](bool goesOn) { save->setVisible(!goesOn); });
    const auto stress = [save, &matching, &counts] {
        const bool isNext = matching.congrats1.visible.get() || counts.counts.get().points == 0;
        setRole(save, isNext ? Role::Default : Role::Plain);
    };
    bindings_.watch(matching.congrats1.visible, [stress](bool) { stress(); });
    bindings_.watch(counts.counts, [stress](const Counts &) { stress(); });
    row.addWidget(save);
}

} // namespace pinmora
