#include "ui/camera_row.h"

#include "platform/translation.h"
#include "shell/offset_words.h"
#include "ui/offset_steppers.h"
#include "ui/photo_texts.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <utility>

namespace pinmora {
namespace {

QLabel *plainLabel(Role role) {
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText); // names come from files
    setRole(label, role);
    return label;
}

/// "12 photos, 8 May 09:54:28 to 8 May 12:06:41"
QString photosOf(const CameraInUse &camera) {
    QString photos =
        QString::fromStdString(translated("ui", "%Ln photos", "%Ln photo", camera.photos));
    if (!camera.first) {
        return photos;
    }
    //: how many photos, and when they were taken
    return *camera.first == *camera.last
               ? CameraRow::tr("%1, %2").arg(photos, shortTime(*camera.first))
               : CameraRow::tr("%1, %2 to %3")
                     .arg(photos, shortTime(*camera.first), shortTime(*camera.last));
}

QString wordsOf(const CameraInUse &camera) {
    const std::chrono::seconds apart = camera.clock.signedOffset();
    if (camera.hasOwnClock) {
        return QString::fromStdString(offsetSentence(apart));
    }
    return apart.count() == 0
               ? CameraRow::tr("Common clock")
               : CameraRow::tr("Common clock, %1").arg(QString::fromStdString(shortOffset(apart)));
}

} // namespace

CameraRow::CameraRow(Cameras &cameras, CameraInUse camera, Editing &editing, QWidget *parent)
    : QWidget(parent), cameras_(cameras), shown_(std::move(camera)),
      photos_(plainLabel(Role::Quiet)), own_(new QCheckBox(tr("Own clock"))),
      steppers_(new OffsetSteppers(
          {.sign = sign_, .hours = hours_, .minutes = minutes_, .seconds = seconds_}, editing)),
      words_(plainLabel(Role::Quiet)) {
    const QString name =
        shown_.camera.empty() ? tr("(not told)") : QString::fromStdString(shown_.name);
    setAccessibleName(name);
    own_->setAccessibleName(tr("%1 has its own clock").arg(name));
    own_->setEnabled(!shown_.camera.empty());
    own_->setToolTip(shown_.camera.empty()
                         ? tr("These photos do not tell what camera took them")
                         : tr("Sets the clock of this camera alone, and remembers it"));
    QLabel *const title = plainLabel(Role::Strong);
    title->setText(name);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(2 * spacing, spacing + smallGap, 2 * spacing, spacing + smallGap);
    grid->setHorizontalSpacing(2 * spacing);
    grid->setVerticalSpacing(smallGap);
    grid->setColumnStretch(0, 1);
    grid->addWidget(title, 0, 0);
    grid->addWidget(own_, 0, 1, Qt::AlignRight);
    grid->addWidget(photos_, 1, 0, 1, 2);
    auto *clock = new QHBoxLayout;
    clock->setSpacing(2 * spacing);
    clock->addWidget(steppers_);
    clock->addWidget(words_, 1);
    grid->addLayout(clock, 2, 0, 1, 2);
    hours_.maximum = 999'999;
    minutes_.maximum = 59;
    seconds_.maximum = 59;
    connectControls();
    showClock();
}

/// Boxes take over what is half typed when they lose the focus, while there are steppers for it.
CameraRow::~CameraRow() {
    delete steppers_;
}

void CameraRow::connectControls() {
    // A zero has no sign of its own: what is chosen holds for what is stepped next.
    const auto set = [this] {
        cameras_.setClock(shown_.camera, {.plus = sign_.selectedTag.get() == 1,
                                          .hours = hours_.value.get(),
                                          .minutes = minutes_.value.get(),
                                          .seconds = seconds_.value.get()});
    };
    for (Stepper *const stepper : {&hours_, &minutes_, &seconds_}) {
        bindings_.keep(stepper->stepped.connect(set));
    }
    bindings_.keep(sign_.chosen.connect(set));
    connect(own_, &QCheckBox::clicked, this,
            [this](bool on) { cameras_.setHasOwnClock(shown_.camera, on); });
}

void CameraRow::showCamera(const CameraInUse &camera) {
    shown_ = camera;
    showClock();
}

void CameraRow::showClock() {
    if (shown_.clock.signedOffset().count() != 0) {
        sign_.selectedTag.set(shown_.clock.plus ? 1 : 0);
    }
    hours_.value.set(shown_.clock.hours);
    minutes_.value.set(shown_.clock.minutes);
    seconds_.value.set(shown_.clock.seconds);
    photos_->setText(photosOf(shown_));
    own_->setChecked(shown_.hasOwnClock);
    steppers_->setVisible(shown_.hasOwnClock);
    words_->setText(wordsOf(shown_));
    layout()->activate(); // the dialog asks for its size at once
}

} // namespace pinmora
