#include "ui/true_time_dialog.h"

#include "shell/true_time.h"
#include "ui/picture_view.h"
#include "ui/theme.h"

#include <QDateTimeEdit>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace pinmora {
namespace {

constexpr int photoHeight = 34 * spacing; // a clock on a wall can be read in it

/// A time on the wall has no zone, and no hour that summer time skips.
QDateTime shownIn(WallClock wall) {
    return QDateTime::fromSecsSinceEpoch(wall.time_since_epoch().count(), Qt::UTC);
}

WallClock wallClockOf(const QDateTime &shown) {
    return WallClock(std::chrono::seconds(shown.toSecsSinceEpoch()));
}

} // namespace

TrueTimeDialog::TrueTimeDialog(TrueTime &trueTime, ImageWell &picture, Observable<bool> &loading,
                               WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          trueTime.sheet, std::move(widgetOf), [&trueTime] { trueTime.cancelButton.press(); },
          owner),
      trueTime_(trueTime), taken_(new QDateTimeEdit) {
    setMinimumWidth(58 * spacing);
    addText(Role::Title, tr("This photo was taken at…"));
    addText(Role::Quiet, tr("If the photo shows a clock, or you know the time otherwise, enter it. "
                            "The camera clock is set by it."));
    addPicture(picture, loading);
    addTimes();
    auto *cancel = new QPushButton(tr("Cancel"));
    auto *set = new QPushButton(tr("Set Clock"));
    addButtons({}, {cancel, set});
    set->setDefault(true);
    bindings_.tie(trueTime.cancelButton, cancel);
    bindings_.tie(trueTime.setButton, set);
}

void TrueTimeDialog::addPicture(ImageWell &picture, Observable<bool> &loading) {
    auto *view = new PictureView(picture, loading);
    view->setFixedHeight(photoHeight);
    view->setAccessibleName(tr("The photo"));
    column()->addWidget(view);
    QLabel *const name = addText(Role::Quiet);
    name->setAlignment(Qt::AlignHCenter);
    bindings_.show(trueTime_.photoName, name);
}

void TrueTimeDialog::addTimes() {
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * spacing);
    grid->setVerticalSpacing(spacing);
    auto *says = new QLabel;
    bindings_.show(trueTime_.cameraSays, says);
    auto *words = new QLabel;
    setRole(words, Role::Strong);
    bindings_.show(trueTime_.words, words);
    taken_->setTimeSpec(Qt::UTC);
    taken_->setLocale(QLocale::system()); // month names as everywhere
    taken_->setDisplayFormat(QStringLiteral("d MMM yyyy HH:mm:ss"));
    taken_->setAccessibleName(tr("When the photo was taken"));
    int row = 0;
    const auto add = [&](const QString &what, QWidget *widget) {
        auto *label = new QLabel(what);
        setRole(label, Role::Quiet);
        label->setBuddy(widget);
        grid->addWidget(label, row, 0);
        grid->addWidget(widget, row++, 1, Qt::AlignLeft);
    };
    add(tr("The camera says"), says);
    add(tr("True time"), taken_);
    grid->addWidget(words, row, 1, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    column()->addLayout(grid);
    bindings_.watch(trueTime_.taken,
                    [this](const WallClock &wall) { taken_->setDateTime(shownIn(wall)); });
    connect(taken_, &QDateTimeEdit::dateTimeChanged, this,
            [this](const QDateTime &shown) { trueTime_.taken.set(wallClockOf(shown)); });
}

void TrueTimeDialog::aboutToShow() {
    taken_->setFocus();
    // Coming up selects the first section, and the day is mostly right.
    QTimer::singleShot(0, taken_,
                       [this] { taken_->setSelectedSection(QDateTimeEdit::HourSection); });
}

} // namespace pinmora
