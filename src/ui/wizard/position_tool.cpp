#include "ui/wizard/position_tool.h"

#include "matching/matcher.h"
#include "matching/matching_outlets.h"
#include "ui/known_position.h"
#include "ui/theme.h"
#include "ui/wizard/clock_words.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace pinmora {

PositionTool::PositionTool(MatchingOutlets &outlets, Matcher &matcher, ClockSaying &saying,
                           QWidget *parent)
    : QWidget(parent) {
    auto *const known = new KnownPosition(outlets, tr("Set From This Position"),
                                          [&matcher] { matcher.guessFromLatLon(); });
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * spacing);
    row->addWidget(known, 1);
    row->addWidget(new ClockWords(saying), 0, Qt::AlignTop);
    const auto offer = [&outlets, known] {
        known->button()->setEnabled(outlets.pictureArray.selectedObjects().size() == 1);
    };
    bindings_.keep(outlets.pictureArray.selectionChanged.connect(offer));
    offer();
}

} // namespace pinmora
