#include "ui/clock_panel.h"

#include "matching/matching_outlets.h"
#include "platform/translation.h"
#include "shell/clock_line.h"
#include "shell/clock_saying.h"
#include "store/image.h"
#include "ui/elided_label.h"
#include "ui/known_position.h"
#include "ui/offset_steppers.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QToolButton>

#include <algorithm>

namespace pinmora {

namespace {

QLabel *labelOf(Role role, const QString &text = {}) {
    auto *label = new QLabel(text);
    setRole(label, role);
    return label;
}

} // namespace

ClockPanel::ClockPanel(MatchingOutlets &outlets, ClockSaying &saying, ClockLine &line,
                       Editing &editing, const std::function<void()> &find, QWidget *parent)
    : QWidget(parent), outlets_(outlets),
      chooseFirst_(labelOf(Role::Quiet, tr("Choose a photo first."))), times_(new QWidget),
      instead_(new QStackedLayout), taken_(new QLabel), corrected_(labelOf(Role::Strong)),
      endOfTurn_([this] { showTimes(); }) {
    auto *clock = new QVBoxLayout;
    clock->setSpacing(smallGap);
    addClock(*clock, saying, line, editing);
    clock->addStretch();
    auto *photo = new QVBoxLayout;
    photo->setSpacing(smallGap);
    addTimes(*photo);
    more_ = makeMore(find);
    addActions(*photo);
    photo->addWidget(more_);
    photo->addStretch();
    halves_ = new QBoxLayout(QBoxLayout::TopToBottom, this);
    halves_->setContentsMargins(0, 0, 0, 0);
    halves_->addLayout(clock);
    halves_->addLayout(photo, 1);
    clock_ = clock;
    photo_ = photo;
    arrange();

    // A selection may change in the middle of a change of the library.
    bindings_.keep(outlets.pictureArray.selectionChanged.connect([this] { endOfTurn_.ask(); }));
    bindings_.keep(outlets.offsetText.text.onChange([this](const std::string &) { showTimes(); }));
    showTimes();
}

void ClockPanel::setLow(bool low) {
    isLow_ = low;
    arrange();
}

QSize ClockPanel::minimumSizeHint() const {
    return {std::max(clock_->minimumSize().width(), photo_->minimumSize().width()),
            QWidget::minimumSizeHint().height()};
}

void ClockPanel::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    arrange();
}

void ClockPanel::arrange() {
    constexpr int between = 4 * spacing;
    const bool isBeside = isLow_ && width() >= clock_->minimumSize().width() + between +
                                                   photo_->minimumSize().width();
    halves_->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    halves_->setSpacing(isBeside ? between : smallGap);
}

/// A camera's name may be long.
QLabel *ClockPanel::elided(TextField &field, Role role) {
    auto *label = new ElidedLabel;
    setRole(label, role);
    bindings_.watch(field.text, [label](const std::string &text) {
        label->setWholeText(QString::fromStdString(text));
    });
    return label;
}

void ClockPanel::addClock(QVBoxLayout &column, ClockSaying &saying, ClockLine &line,
                          Editing &editing) {
    column.addWidget(elided(saying.heading, Role::Heading));
    column.addWidget(new OffsetSteppers({.sign = outlets_.plusMinus,
                                         .hours = outlets_.stepperHour,
                                         .minutes = outlets_.stepperMin,
                                         .seconds = outlets_.stepperSec},
                                        editing));
    column.addWidget(elided(line.words, Role::Quiet));
}

void ClockPanel::addTimes(QVBoxLayout &column) {
    auto *grid = new QGridLayout(times_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(spacing);
    grid->setVerticalSpacing(smallGap / 2);
    grid->addWidget(labelOf(Role::Quiet, tr("Taken")), 0, 0);
    grid->addWidget(taken_, 0, 1);
    grid->addWidget(labelOf(Role::Quiet, tr("Corrected")), 1, 0);
    grid->addWidget(corrected_, 1, 1);
    chooseFirst_->setAlignment(Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    corrected_->setAccessibleName(tr("Corrected time"));
    // As high without a photo as with one, or the map would jump with each selection.
    instead_->addWidget(chooseFirst_);
    instead_->addWidget(times_);
    column.addLayout(instead_);
}

void ClockPanel::addActions(QVBoxLayout &column) {
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing);
    set_ = new QPushButton(tr("Set From This Position"));
    QPushButton *const set = set_;
    set->setToolTip(tr("Finds the track point nearest to the photo's position and sets the clock "
                       "by its time"));
    bindings_.tie(outlets_.offsetButton, set);
    bindings_.keep(outlets_.offsetButton.enabled.onChange([this](bool) { showTimes(); }));
    auto *unfold = new QToolButton;
    unfold->setObjectName(QStringLiteral("more"));
    unfold->setText(tr("More"));
    unfold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    unfold->setArrowType(Qt::RightArrow);
    unfold->setCheckable(true);
    unfold->setAutoRaise(true);
    unfold->setToolTip(tr("More ways to set the clock by a log"));
    setRole(unfold, Role::Flat);
    connect(unfold, &QToolButton::toggled, this, [this, unfold](bool open) {
        unfold->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
        more_->setVisible(open);
    });
    row->addWidget(set);
    row->addWidget(unfold);
    row->addStretch();
    column.addLayout(row);
}

QWidget *ClockPanel::makeMore(const std::function<void()> &find) {
    auto *more = new QWidget;
    auto *grid = new QGridLayout(more);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(smallGap);
    auto *match = new QPushButton(tr("Match by Time"));
    match->setToolTip(tr("Takes the track point nearest in time and sets the clock by it"));
    bindings_.tie(outlets_.matchButton, match);
    grid->addWidget(match, 0, 0, 1, 3, Qt::AlignLeft);
    grid->addWidget(labelOf(Role::Quiet, tr("Or where the photo is known to be:")), 1, 0, 1, 3);
    //: button: find the track point nearest to a position, and set the clock by it
    grid->addWidget(new KnownPosition(outlets_, tr("Find"), find), 2, 0, 1, 3);
    grid->setColumnStretch(3, 1);
    more->hide();
    return more;
}

/// Only one photo's time, and one that the photo has told, says anything about the clock.
void ClockPanel::showTimes() {
    const std::vector<image *> &photos = outlets_.pictureArray.selectedObjects();
    instead_->setCurrentWidget(photos.empty() ? chooseFirst_ : times_);
    set_->setEnabled(photos.size() == 1 && outlets_.offsetButton.enabled.get());
    if (photos.empty()) {
        return;
    }
    const image &photo = *photos.front();
    const std::string &corrected = outlets_.offsetText.text.get();
    const bool isTold = photo.captureTime().has_value();
    const bool isOne = photos.size() == 1;
    taken_->setText(
        !isOne ? QString::fromStdString(translated("ui", "%Ln photos", "%Ln photo", photos.size()))
        : !isTold ? tr("not told by the photo")
                  : QString::fromStdString(photo.time_string()).trimmed());
    corrected_->setText(!isOne || !isTold || corrected.empty()
                            ? QStringLiteral("–")
                            : QString::fromStdString(corrected).trimmed());
}

} // namespace pinmora
