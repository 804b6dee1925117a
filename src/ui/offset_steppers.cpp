#include "ui/offset_steppers.h"

#include "outlets/editing.h"
#include "outlets/selector.h"
#include "outlets/stepper.h"
#include "ui/field_bindings.h"
#include "ui/stepper_box.h"
#include "ui/theme.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <tuple>

namespace pinmora {

OffsetSteppers::OffsetSteppers(const OffsetControls &controls, Editing &editing, QWidget *parent)
    : QWidget(parent) {
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(smallGap);
    addSigns(*row, controls.sign);
    addBoxes(*row, controls);
    row->addStretch();
    bindings_.keep(editing.addEditor([this] {
        for (StepperBox *box : boxes_) {
            box->takeOverTyped();
        }
        return true;
    }));
}

void OffsetSteppers::addSigns(QHBoxLayout &row, Selector &sign) {
    auto *signs = new QButtonGroup(this);
    auto *pair = new QHBoxLayout;
    pair->setSpacing(0);
    for (const auto &[tag, text, name] :
         {std::tuple(1, QStringLiteral("+"), tr("Add to the camera's time")),
          std::tuple(0, QStringLiteral("−"), tr("Subtract from the camera's time"))}) {
        auto *button = new QPushButton(text);
        button->setCheckable(true);
        button->setFixedWidth(3 * spacing + 2);
        button->setStyleSheet(tag == 1 ? QStringLiteral("QPushButton { padding: 3px 0;"
                                                        "border-top-right-radius: 0;"
                                                        "border-bottom-right-radius: 0; }")
                                       : QStringLiteral("QPushButton { padding: 3px 0;"
                                                        "border-left-width: 0;"
                                                        "border-top-left-radius: 0;"
                                                        "border-bottom-left-radius: 0; }"));
        button->setAccessibleName(name);
        button->setToolTip(name);
        signs->addButton(button, tag);
        pair->addWidget(button);
    }
    tie(bindings_, sign, signs);
    row.addLayout(pair);
}

void OffsetSteppers::addBoxes(QHBoxLayout &row, const OffsetControls &controls) {
    for (const auto &[stepper, unit, name, digits] :
         //: hours, minutes and seconds in one letter or a few
         {std::tuple(&controls.hours, tr("h"), tr("Hours"), 3),
          std::tuple(&controls.minutes, tr("min"), tr("Minutes"), 2),
          std::tuple(&controls.seconds, tr("s"), tr("Seconds"), 2)}) {
        auto *box = new StepperBox(*stepper, bindings_);
        box->setAccessibleName(tr("%1 that the camera's clock is off").arg(name));
        box->setStyleSheet(QStringLiteral("QAbstractSpinBox { padding: 3px 2px; }"));
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(QString(digits, u'0')) +
                           3 * spacing + 2);
        boxes_.push_back(box);
        row.addWidget(box);
        row.addWidget(new QLabel(unit));
    }
}

} // namespace pinmora
