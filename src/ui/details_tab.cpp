#include "ui/details_tab.h"

#include "shell/detail_fields.h"
#include "ui/field_bindings.h"
#include "ui/field_edit.h"
#include "ui/note_edit.h"
#include "ui/photo_texts.h"
#include "ui/picture_view.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>

namespace pinmora {

namespace {

/// In a row of its own, or in the last one.
QLabel *addDetailLabel(QGridLayout &grid, int column, const QString &text) {
    auto *label = new QLabel(text);
    setRole(label, Role::Quiet);
    const int row = column == 0 ? grid.rowCount() : grid.rowCount() - 1;
    grid.addWidget(label, row, column, Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

DetailsTab::DetailsTab(Parts parts, QWidget *parent) : QWidget(parent) {
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing, spacing, spacing, spacing);
    column->setSpacing(spacing + smallGap);
    auto *picture = new PictureView(parts.picture, parts.pictureLoading);
    picture->setAccessibleName(tr("Picture of the selected photo"));
    if (parts.fullSize) {
        picture->setToolTip(tr("Double-click to see it at full size"));
        connect(picture, &PictureView::doubleClicked, this, parts.fullSize);
    }
    column->addWidget(picture, 1);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(spacing + smallGap);
    grid->setVerticalSpacing(smallGap);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    addName(*grid, parts.details, parts.rename);
    addNote(*grid, parts.details.img_description, tr("Description"), 2);
    addNote(*grid, parts.details.comments, tr("Comment"), 2);
    addCity(*grid, parts.details);
    addLine(*grid, 2, parts.details.prov, tr("Province or state"));
    addLine(*grid, 0, parts.details.country, tr("Country"));
    addAltitude(*grid, parts.details.alt);
    column->addLayout(grid);
}

void DetailsTab::addName(QGridLayout &grid, DetailFields &details,
                         const std::function<void()> &rename) {
    auto *name = new QLabel;
    setRole(name, Role::Strong);
    name->setTextInteractionFlags(Qt::TextSelectableByMouse);
    name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bindings_.show(details.image_name, name);
    auto *button = new QPushButton(tr("Rename…"));
    button->setToolTip(tr("Gives the selected photos, or all, new names for saving"));
    connect(button, &QPushButton::clicked, this, rename);
    bindings_.follow(details.image_name, button);
    addDetailLabel(grid, 0, tr("Name"));
    auto *row = new QHBoxLayout;
    row->addWidget(name, 1);
    row->addWidget(button);
    grid.addLayout(row, grid.rowCount() - 1, 1, 1, 3);
}

void DetailsTab::addNote(QGridLayout &grid, DetailField &field, const QString &name, int lines) {
    auto *edit = new NoteEdit(lines);
    edit->setAccessibleName(name);
    const QKeySequence keys(Qt::SHIFT | Qt::Key_Return);
    //: %1: keys, "Shift+Return"
    edit->setToolTip(tr("%1 begins another line").arg(keys.toString(QKeySequence::NativeText)));
    tie(bindings_, field, edit);
    QLabel *const label = addDetailLabel(grid, 0, name);
    label->setBuddy(edit);
    label->setContentsMargins(0, smallGap, 0, 0);
    grid.setAlignment(label, Qt::AlignRight | Qt::AlignTop);
    grid.addWidget(edit, grid.rowCount() - 1, 1, 1, 3);
}

void DetailsTab::addLine(QGridLayout &grid, int column, DetailField &field, const QString &name) {
    auto *edit = new FieldEdit;
    edit->setAccessibleName(name);
    tie(bindings_, field, edit);
    addDetailLabel(grid, column, name)->setBuddy(edit);
    grid.addWidget(edit, grid.rowCount() - 1, column + 1);
}

void DetailsTab::addCity(QGridLayout &grid, DetailFields &details) {
    auto *edit = new FieldEdit;
    edit->setAccessibleName(tr("City"));
    tie(bindings_, details.city, edit);
    addDetailLabel(grid, 0, tr("City"))->setBuddy(edit);
    auto *distance = new QLabel(this); // it is shown before it has its place
    distance->setObjectName(QStringLiteral("cityDistance"));
    setRole(distance, Role::Quiet);
    distance->setAccessibleName(tr("Distance to the city"));
    distance->setToolTip(tr("From the photo to the place of this name"));
    bindings_.watch(details.place_distance, [distance](std::optional<double> metres) {
        distance->setText(photo_texts::distance(metres));
        distance->setVisible(metres.has_value());
    });
    auto *row = new QHBoxLayout;
    row->setSpacing(smallGap);
    row->addWidget(edit, 1);
    row->addWidget(distance);
    grid.addLayout(row, grid.rowCount() - 1, 1);
}

void DetailsTab::addAltitude(QGridLayout &grid, DetailField &field) {
    auto *edit = new FieldEdit;
    edit->setAccessibleName(tr("Altitude in metres"));
    edit->setAlignment(Qt::AlignRight);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("-0000.000000")) +
                        2 * spacing);
    tie(bindings_, field, edit);
    addDetailLabel(grid, 2, tr("Altitude"))->setBuddy(edit);
    auto *row = new QHBoxLayout;
    row->setSpacing(smallGap);
    row->addWidget(edit);
    //: metres
    row->addWidget(new QLabel(tr("m")));
    row->addStretch();
    grid.addLayout(row, grid.rowCount() - 1, 3);
    auto *problem = new QLabel(this);
    setRole(problem, Role::Problem);
    QSizePolicy policy = problem->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing is to jump
    problem->setSizePolicy(policy);
    grid.addWidget(problem, grid.rowCount(), 1, 1, 3, Qt::AlignRight);
    bindings_.watch(field.problem, [problem](const std::string &why) {
        problem->setText(QString::fromStdString(why));
        problem->setVisible(!why.empty());
    });
}

} // namespace pinmora
