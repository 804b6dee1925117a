#include "ui/coordinate_panel.h"

#include "coords/coordinate_fields.h"
#include "ui/field_bindings.h"
#include "ui/field_edit.h"
#include "ui/hemisphere_box.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace pinmora {

namespace {

constexpr int narrowGap = 3; // between a number and its sign

QLabel *addRowLabel(QGridLayout &grid, int row, const QString &text) {
    auto *label = new QLabel(text);
    setRole(label, Role::Quiet);
    grid.addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

/// All as wide as the widest, so that what stands behind them is aligned.
QLabel *signOf(const QString &sign) {
    auto *label = new QLabel(sign);
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(u'″') + 1);
    return label;
}

QString nameOf(const AxisFields &axis) {
    return &axis.kind() == &latitudeKind ? CoordinatePanel::tr("Latitude")
                                         : CoordinatePanel::tr("Longitude");
}

} // namespace

CoordinatePanel::CoordinatePanel(CoordinateFields &fields, Button &addRemoveMarker, QWidget *parent)
    : QWidget(parent), fields_(fields), problem_(new QLabel) {
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(spacing + smallGap);
    grid->setVerticalSpacing(smallGap);
    addDecimals(*grid, addRemoveMarker);
    addParts(*grid, 1, Show::Minutes);
    addParts(*grid, 2, Show::Seconds);

    setRole(problem_, Role::Problem);
    problem_->setWordWrap(true);
    QSizePolicy policy = problem_->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // or the map would jump with each slip
    problem_->setSizePolicy(policy);
    grid->addWidget(problem_, 3, 0, 1, 3);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(3, 1);
    for (AxisFields *axis : {&fields.lat, &fields.lon}) {
        for (CoordinateField *field : axis->fields()) {
            bindings_.keep(
                field->problem.onChange([this](const std::string &) { showProblems(); }));
        }
    }
    showProblems();
}

void CoordinatePanel::addDecimals(QGridLayout &grid, Button &addRemoveMarker) {
    addRowLabel(grid, 0, tr("Decimal"));
    auto *row = new QHBoxLayout;
    row->setSpacing(smallGap);
    for (AxisFields *axis : {&fields_.lat, &fields_.lon}) {
        row->addWidget(addField(axis->d, QStringLiteral("-000.000000"),
                                tr("%1, decimal degrees").arg(nameOf(*axis))));
    }
    auto *marker = new QPushButton(tr("Add Marker"));
    marker->setToolTip(tr("Puts a marker on the map for the selected photos, or takes it away with "
                          "their position"));
    bindings_.tie(addRemoveMarker, marker);
    row->addSpacing(spacing);
    row->addStretch();
    row->addWidget(marker);
    grid.addLayout(row, 0, 1, 1, 2);
}

void CoordinatePanel::addParts(QGridLayout &grid, int row, Show show) {
    addRowLabel(grid, row, show == Show::Minutes ? tr("Deg, min") : tr("Deg, min, sec"));
    int column = 1;
    for (AxisFields *axis : {&fields_.lat, &fields_.lon}) {
        auto *parts = new QHBoxLayout;
        parts->setSpacing(narrowGap);
        if (show == Show::Minutes) {
            addMinutes(*parts, *axis);
            addHemisphere(*parts, *axis, tr("%1, hemisphere").arg(nameOf(*axis)));
        } else {
            addSeconds(*parts, *axis);
            addHemisphere(*parts, *axis, tr("%1, hemisphere, by the seconds").arg(nameOf(*axis)));
        }
        grid.addLayout(parts, row, column++);
    }
}

/// The minutes take the room of the minutes and seconds below them.
void CoordinatePanel::addMinutes(QHBoxLayout &row, AxisFields &axis) {
    row.addWidget(
        addField(axis.dmDegree, QStringLiteral("-00"), tr("%1, degrees").arg(nameOf(axis))));
    row.addWidget(new QLabel(QStringLiteral("°")));
    FieldEdit *const minutes =
        addField(axis.dmMinute, QStringLiteral("00.000"), tr("%1, minutes").arg(nameOf(axis)));
    minutes->setMaximumWidth(QWIDGETSIZE_MAX);
    row.addWidget(minutes, 1);
    row.addWidget(signOf(QStringLiteral("′")));
}

void CoordinatePanel::addSeconds(QHBoxLayout &row, AxisFields &axis) {
    row.addWidget(
        addField(axis.dmsDegree, QStringLiteral("-00"), tr("%1, whole degrees").arg(nameOf(axis))));
    row.addWidget(new QLabel(QStringLiteral("°")));
    row.addWidget(
        addField(axis.dmsMinute, QStringLiteral("00"), tr("%1, whole minutes").arg(nameOf(axis))));
    row.addWidget(new QLabel(QStringLiteral("′")));
    row.addWidget(
        addField(axis.dmsSecond, QStringLiteral("00.0"), tr("%1, seconds").arg(nameOf(axis))));
    row.addWidget(signOf(QStringLiteral("″")));
}

void CoordinatePanel::addHemisphere(QHBoxLayout &row, AxisFields &axis, const QString &name) {
    auto *hemisphere = new HemisphereBox(&axis.kind() == &latitudeKind);
    hemisphere->setAccessibleName(name);
    tie(bindings_, axis.hemisphere, hemisphere);
    row.addWidget(hemisphere);
}

FieldEdit *CoordinatePanel::addField(CoordinateField &field, const QString &widest,
                                     const QString &name) {
    auto *edit = new FieldEdit;
    edit->setAlignment(Qt::AlignRight);
    edit->fitTo(widest);
    edit->setAccessibleName(name);
    tie(bindings_, field, edit);
    return edit;
}

/// The first one in words: a frame alone does not say what would be right.
void CoordinatePanel::showProblems() {
    std::string first;
    for (AxisFields *axis : {&fields_.lat, &fields_.lon}) {
        for (const CoordinateField *field : axis->fields()) {
            if (first.empty()) {
                first = field->problem.get();
            }
        }
    }
    problem_->setText(QString::fromStdString(first));
    problem_->setVisible(!first.empty());
}

} // namespace pinmora
