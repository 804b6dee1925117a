#include "ui/wizard/wizard_window.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/offset_steppers.h"
#include "ui/roles.h"
#include "ui/theme.h"
#include "ui/wizard/clock_words.h"
#include "ui/wizard/details_column.h"
#include "ui/wizard/wizard_surface.h"
#include "ui/wizard/wizard_texts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace pinmora {
namespace {

QHBoxLayout *rowIn(QWidget *tool) {
    auto *const row = new QHBoxLayout(tool);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * spacing);
    return row;
}

/// A button to add more, seen once there is something.
QPushButton *moreButton(const QString &title, const std::function<void()> &act, QWidget *parent) {
    auto *const button = new QPushButton(title, parent);
    button->setAutoDefault(true);
    QObject::connect(button, &QPushButton::clicked, button, act);
    return button;
}

} // namespace

QWidget *WizardWindow::makePhotosTool() {
    auto *const tool = new QWidget;
    QHBoxLayout *const row = rowIn(tool);
    auto *const more = moreButton(
        tr("Add More Photos…"), [this] { subsystems_.photoIntake.getFiles(); }, tool);
    row->addWidget(more);
    row->addStretch();
    bindings_.watch(subsystems_.counts.counts,
                    [more](const Counts &now) { more->setVisible(now.photos > 0); });
    return tool;
}

QWidget *WizardWindow::makeTracksTool() {
    auto *const tool = new QWidget;
    QHBoxLayout *const row = rowIn(tool);
    auto *const more = moreButton(
        tr("Load More GPS Data…"), [this] { subsystems_.gpsIntake.getGPSFile(); }, tool);
    row->addWidget(more);
    row->addStretch();
    bindings_.watch(subsystems_.counts.counts,
                    [more](const Counts &now) { more->setVisible(now.tracks > 0); });
    return tool;
}

/// With a log, how the clock is set; without one, how many photos have their place.
QWidget *WizardWindow::makeMapTool() {
    auto *const tool = new QWidget;
    QHBoxLayout *const row = rowIn(tool);
    auto *const clock = new ClockWords(subsystems_.clockSaying, tool);
    auto *const placed = new QLabel(tool);
    setRole(placed, Role::Strong);
    auto *const load = new QPushButton(tr("Load a GPS log instead"), tool);
    setRole(load, Role::Link);
    bindings_.tie(subsystems_.wizardOutlets.loadLogInstead, load);
    row->addWidget(clock);
    row->addWidget(placed);
    row->addStretch();
    row->addWidget(load);
    bindings_.watch(subsystems_.counts.counts, [clock, placed, load](const Counts &now) {
        clock->setVisible(now.points > 0);
        placed->setText(placedOf(now));
        placed->setVisible(now.points == 0);
        load->setVisible(now.points == 0);
    });
    return tool;
}

QWidget *WizardWindow::makeOffsetTool() {
    auto *const tool = new QWidget;
    QHBoxLayout *const row = rowIn(tool);
    MatchingOutlets &clock = subsystems_.matching;
    row->addWidget(new OffsetSteppers({.sign = clock.plusMinus3,
                                       .hours = clock.stepperHour,
                                       .minutes = clock.stepperMin,
                                       .seconds = clock.stepperSec},
                                      delegate_.editing));
    row->addSpacing(2 * spacing);
    row->addWidget(new ClockWords(subsystems_.clockSaying));
    row->addStretch();
    return tool;
}

/// What the page with the map does with the selected photo.
void WizardWindow::addDetailTools() {
    detailTools_ = new QWidget;
    auto *const column = new QVBoxLayout(detailTools_);
    column->setContentsMargins(0, smallGap, 0, 0);
    column->setSpacing(spacing);
    auto *const set = new QPushButton(tr("Set From This Position"), detailTools_);
    set->setToolTip(tr("Finds the track point nearest to the photo's position and sets the clock "
                       "by its time"));
    bindings_.tie(subsystems_.matching.offsetButton2, set);
    auto *const marker = new QPushButton(tr("Add Marker"), detailTools_);
    bindings_.tie(delegate_.interface.addRemoveMarker2, marker);
    for (QPushButton *const button : {set, marker}) {
        button->setAutoDefault(true);
        column->addWidget(button);
    }
    bindings_.watch(subsystems_.counts.counts,
                    [set](const Counts &now) { set->setVisible(now.points > 0); });
    surface_->details().addTool(detailTools_);
}

} // namespace pinmora
