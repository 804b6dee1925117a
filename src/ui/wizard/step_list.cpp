#include "ui/wizard/step_list.h"

#include "shell/wizard.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pinmora {
namespace {

constexpr int stepsWidth = 176;

} // namespace

StepList::StepList(WizardOutlets &outlets, Wizard &wizard, QWidget *parent)
    : QFrame(parent), outlets_(outlets), wizard_(wizard) {
    setRole(this, Role::Steps);
    setFixedWidth(stepsWidth);
    setAccessibleName(tr("Steps"));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(spacing, 2 * spacing + smallGap, spacing, spacing);
    column->setSpacing(0);
    for (std::size_t place = 0; place < steps_.size(); ++place) {
        addStep(*column, place);
    }
    column->addStretch();
    auto *const other = new QPushButton(tr("Main Window"));
    other->setToolTip(tr("The same work, everything on one surface"));
    setRole(other, Role::Link);
    bindings_.tie(outlets.useAdvanced, other);
    column->addWidget(other, 0, Qt::AlignLeft);
    for (std::size_t place = 0; place < steps_.size(); ++place) {
        bindings_.watch(outlets.steps.at(place).current, [this, place](bool) { show(place); });
        bindings_.watch(outlets.steps.at(place).reached, [this, place](bool) { show(place); });
    }
    bindings_.watch(outlets.wizardTabs.selectedIdentifier,
                    [this](const std::string &) { nameSteps(); });
}

void StepList::addStep(QVBoxLayout &column, std::size_t place) {
    Step &step = steps_.at(place);
    step.button = new QPushButton(this);
    setRole(step.button, Role::Step);
    step.button->setAutoDefault(true);
    step.number = new QLabel(QString::number(place + 1), step.button);
    step.number->setAlignment(Qt::AlignCenter);
    QFont small = step.number->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    step.number->setFont(small);
    step.name = new QLabel(step.button);
    auto *const row = new QHBoxLayout(step.button);
    row->setContentsMargins(spacing, 0, spacing, 0);
    row->setSpacing(spacing + 2);
    row->addWidget(step.number);
    row->addWidget(step.name, 1);
    for (QLabel *label : {step.number, step.name}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    connect(step.button, &QPushButton::clicked, this, [this, place] { wizard_.goToStep(place); });
    column.addWidget(step.button);
}

/// One of them is named for the way that was chosen.
void StepList::nameSteps() {
    const std::array routes{tr("On the map"), tr("On the map"), tr("By position"),
                            tr("Known offset")};
    const std::array names{tr("Welcome"),
                           tr("Photos"),
                           tr("GPS data"),
                           tr("Camera clock"),
                           routes.at(static_cast<std::size_t>(wizard_.wizardRouteNumber())),
                           tr("Apply and save")};
    for (std::size_t place = 0; place < steps_.size(); ++place) {
        steps_.at(place).name->setText(names.at(place));
        show(place);
    }
}

void StepList::show(std::size_t place) {
    const bool isCurrent = outlets_.steps.at(place).current.get();
    const bool isReached = outlets_.steps.at(place).reached.get();
    const Step &step = steps_.at(place);
    setRole(step.number, isCurrent ? Role::StepNow : isReached ? Role::StepDone : Role::StepAhead);
    setRole(step.name, isCurrent ? Role::Strong : Role::Quiet);
    step.button->setEnabled(isReached);
    step.button->setAccessibleName(
        tr("Step %1 of %2: %3").arg(place + 1).arg(steps_.size()).arg(step.name->text()));
    step.button->setAccessibleDescription(isCurrent ? tr("This step is shown") : QString());
}

} // namespace pinmora
