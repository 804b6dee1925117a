#include "ui/known_position.h"

#include "matching/matching_outlets.h"
#include "ui/field_bindings.h"
#include "ui/field_edit.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <tuple>

namespace pinmora {

KnownPosition::KnownPosition(MatchingOutlets &outlets, const QString &buttonTitle,
                             const std::function<void()> &find, QWidget *parent)
    : QWidget(parent), button_(new QPushButton(buttonTitle)) {
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(smallGap);
    int place = 0;
    for (const auto &[field, hint, name] :
         {std::tuple(&outlets.knownLat, tr("Latitude"), tr("Known latitude, decimal degrees")),
          std::tuple(&outlets.knownLon, tr("Longitude"), tr("Known longitude, decimal degrees"))}) {
        auto *edit = new FieldEdit;
        edit->setPlaceholderText(hint);
        edit->setAccessibleName(name);
        edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(hint) + 3 * spacing);
        tie(bindings_, *field, edit);
        connect(edit, &FieldEdit::returnPressed, this, find);
        grid->addWidget(edit, 0, place++);
    }
    button_->setToolTip(tr("Finds the track point nearest to this position and sets the clock "
                           "by its time"));
    connect(button_, &QPushButton::clicked, this, find);
    grid->addWidget(button_, 0, place);
    grid->setColumnStretch(place + 1, 1);
    auto *problem = new QLabel(this);
    setRole(problem, Role::Problem);
    problem->setWordWrap(true);
    grid->addWidget(problem, 1, 0, 1, place + 2);
    for (CheckedField *field : {&outlets.knownLat, &outlets.knownLon}) {
        bindings_.watch(field->problem, [&outlets, problem](const std::string &) {
            const std::string &lat = outlets.knownLat.problem.get();
            const std::string &why = lat.empty() ? outlets.knownLon.problem.get() : lat;
            problem->setText(QString::fromStdString(why));
            problem->setVisible(!why.empty());
        });
    }
}

} // namespace pinmora
